// zebstring.h: how does the system hold, convert and cut text?
//
// zebString owns a zero-terminated text of known length. Conversions between
// text and values are stream-like operators; a text that doesn't convert sets
// m_failed of the string that was read and throws nothing.
#ifndef ZEBSTRING_H
#define ZEBSTRING_H

class zebStringList;

class zebString {
 public:
  static constexpr int npos = -1;  // what find and rfind give when nothing is found

  zebString();
  zebString(const char* text);  // null counts as empty
  zebString(char c);
  zebString(const zebString& s);
  virtual ~zebString();

  zebString& operator=(const zebString& s);
  zebString& operator=(const char* text);
  zebString& operator=(char c);
  zebString& operator+=(const zebString& s);
  bool operator==(const zebString& s) const;

  const char* c_str() const { return m_buffer; }  // never null
  int length() const { return m_length; }         // characters, terminator not counted
  bool empty() const { return m_length == 0; }
  char operator[](int i) const { return m_buffer[i]; }  // i from 0 to length()
  int bufSize() const { return m_bufSize; }             // bytes of the block

  void allocate(int n);  // length n, all zero; below 0 counts as 0
  void free();           // back to the unallocated state: only allocate or assign may follow
  void growBy(int n);
  void assign(char c);
  void assign(const char* text);
  void assign(const zebString& s);
  void resize(int n, char fill);

  int find(const zebString& s, int from = 0) const;
  int rfind(const zebString& s) const;
  zebString substr(int i) const;
  zebString substr(int i, int n) const;
  int compare(const zebString& s) const;  // negative, 0, positive; a prefix differs by the lengths
  void trim();                            // blanks, tabs and carriage returns at both ends
  zebString toLower() const;

  zebString getFileName() const;   // behind the last "/" or "\"
  zebString getFileDir() const;    // up to and including that separator
  zebString getFileTitle() const;  // the file name before its last "."

  static const char* prefixI64();  // printf's length modifier for 64-bit integers

  // Cut the text into words at any of the separators; the result is the number of words.
  int parse(zebStringList& out, const zebString& separators) const;
  int parse(zebString& a, zebString& b, const zebString& separators) const;
  int parse(zebString& a, zebString& b, zebString& c, const zebString& separators) const;

  static zebString flagString(int value, const int* values, const zebString* names, int count);
  static int flagValue(zebString& text, const int* values, const zebString* names, int count, int skip);
  static zebString enumString(int value, const int* values, const zebString* names, int count);
  static int enumValue(zebString& text, const int* values, const zebString* names, int count, int skip);

  bool m_failed;  // the last conversion that read this string stored nothing

 private:
  void init();
  void set(const char* text, int n);

  // Every byte of the block at or past m_length is 0.
  char* m_buffer;
  int m_length;
  int m_bufSize;
};

zebString operator+(const zebString& a, const zebString& b);

// True if word begins name or name.substr(skip), in any case: keywords can be shortened.
bool fitString(const zebString& word, const zebString& name, int skip);

// Append the text of a value.
zebString& operator<<(zebString& s, const zebString& value);
zebString& operator<<(zebString& s, const char* value);
zebString& operator<<(zebString& s, char value);
zebString& operator<<(zebString& s, const void* value);  // "NULL" or upper-case hexadecimal
zebString& operator<<(zebString& s, bool value);         // "yes" or "no"
zebString& operator<<(zebString& s, int value);
zebString& operator<<(zebString& s, unsigned int value);
zebString& operator<<(zebString& s, unsigned char value);  // as a number
zebString& operator<<(zebString& s, long long value);
zebString& operator<<(zebString& s, double value);  // three significant digits
zebString& operator<<(zebString& s, float value);

// Read a value; the target stays when nothing could be read, but a bool becomes false.
bool& operator<<(bool& value, zebString& s);
int& operator<<(int& value, zebString& s);
long long& operator<<(long long& value, zebString& s);
double& operator<<(double& value, zebString& s);
float& operator<<(float& value, zebString& s);

#endif
