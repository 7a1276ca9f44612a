// zeblist.h: the one collection of the system, a doubly linked list.
//
// Nodes hold their values; iterators stay valid until their own element is
// erased. The end is a sentinel node that holds a default value, so reading
// the element at end() is defined.
#ifndef ZEBLIST_H
#define ZEBLIST_H

template <class T>
class zebList {
  struct Node {
    Node* next = nullptr;
    Node* prev = nullptr;
    T value{};
  };

 public:
  class iterator {
   public:
    explicit iterator(Node* node = nullptr) : m_node(node) {}
    T& operator*() const { return m_node->value; }
    T* operator->() const { return &m_node->value; }
    iterator& operator++() {
      m_node = m_node->next;
      return *this;
    }
    iterator operator++(int) {
      iterator old = *this;
      m_node = m_node->next;
      return old;
    }
    iterator& operator--() {
      m_node = m_node->prev;
      return *this;
    }
    bool operator==(const iterator& other) const { return m_node == other.m_node; }

   private:
    friend class zebList<T>;
    Node* m_node;
  };

  zebList() : m_end(new Node) { m_first = m_end; }
  zebList(const zebList& other) : zebList() { append(other); }
  zebList& operator=(const zebList& other) {
    if (this != &other) {
      clear();
      append(other);
    }
    return *this;
  }
  virtual ~zebList() {
    clear();
    delete m_end;
  }

  iterator begin() const { return iterator(m_first); }
  iterator end() const { return iterator(m_end); }
  bool empty() const { return m_first == m_end; }

  // Walks the list.
  int size() const {
    int n = 0;
    for (Node* p = m_first; p != m_end; p = p->next) ++n;
    return n;
  }

  // Puts a new node before pos and returns its position.
  iterator insert(iterator pos, const T& v) {
    Node* node = new Node;
    node->value = v;
    link(pos.m_node, node);
    return iterator(node);
  }

  // Returns the position behind the erased element.
  iterator erase(iterator pos) {
    Node* next = pos.m_node->next;
    delete unlink(pos.m_node);
    return iterator(next);
  }

  // Removes up to but not including last.
  iterator erase(iterator first, iterator last) {
    while (!(first == last)) first = erase(first);
    return last;
  }

  void push_back(const T& v) { insert(end(), v); }
  void clear() { erase(begin(), end()); }

  void swap(zebList& other) {
    Node* first = m_first;
    Node* end = m_end;
    m_first = other.m_first;
    m_end = other.m_end;
    other.m_first = first;
    other.m_end = end;
  }

  // Moves the first element of from, which isn't empty, to the end of this list.
  void takeFront(zebList& from) { link(m_end, from.unlink(from.m_first)); }

  // Moves all of newer into this list, both sorted; an element of newer goes first only if strictly less.
  void merge(zebList& newer, bool (*less)(const T&, const T&)) {
    Node* p = m_first;
    while (p != m_end && !newer.empty()) {
      if (less(newer.m_first->value, p->value)) {
        link(p, newer.unlink(newer.m_first));
      } else {
        p = p->next;
      }
    }
    while (!newer.empty()) takeFront(newer);
  }

 private:
  void append(const zebList& other) {
    for (const T& v : other) push_back(v);
  }

  void link(Node* pos, Node* node) {
    node->next = pos;
    node->prev = pos->prev;
    (pos->prev ? pos->prev->next : m_first) = node;
    pos->prev = node;
  }

  Node* unlink(Node* node) {
    (node->prev ? node->prev->next : m_first) = node->next;
    node->next->prev = node->prev;
    return node;
  }

  Node* m_first;
  Node* m_end;
};

#endif
