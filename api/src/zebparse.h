// zebparse.h: where does a word of a text end?
//
// Words are separated by any of a set of characters. A word may hold quoted
// separators and keeps its quotes; quoting is off when the double quote is
// itself a separator.
#ifndef ZEBPARSE_H
#define ZEBPARSE_H

#include "zebstringlist.h"

class zebParse {
 public:
  explicit zebParse(const zebString& text);

  void initParse(const zebString& separators);
  bool isSeparator(int i);
  bool nextWord(zebString& word);  // false at the end of the text
  void removeQuote(zebString& word);

  // The results are the numbers of all words, which may exceed the targets.
  int parse(zebStringList& out, const zebString& separators);
  int parse(zebString& a, zebString& b, const zebString& separators);
  int parse(zebString& a, zebString& b, zebString& c, const zebString& separators);

 private:
  int parse(zebString** targets, int count, const zebString& separators);

  zebString m_text;
  zebString m_separators;
  int m_position;
  int m_quote;  // position of the opening quote, -1 outside of quotes, -100 when quoting is off
};

#endif
