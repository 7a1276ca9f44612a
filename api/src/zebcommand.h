// zebcommand.h: which keys does a command line hold, and with which arguments?
//
// A key is a word of "-" or "/" and one character. Its argument is the rest of
// the word or, when there is none, the next word; "-", "+" or "=" behind the
// character belongs to the argument either way.
#ifndef ZEBCOMMAND_H
#define ZEBCOMMAND_H

#include "zeblist.h"
#include "zebstring.h"
#include "zebstringlist.h"

// True for a text of two characters or more that begins with "-" or "/".
bool isKeyString(const zebString& text);

class zebCommandKey {
 public:
  // Next is the word behind text, empty if there is none. False, and nothing set, when text isn't a key.
  bool setArg(const zebString& text, const zebString& next);

  // Copies the argument when this is that key; otherwise false, and arg stays.
  bool getArg(char key, zebString& arg) const;

  char m_key = ' ';
  zebString m_arg;
};

// All keys in the order of the command line, repeated ones included.
class zebCommandList : public zebList<zebCommandKey> {
 public:
  void setArgs(int argc, char** argv);
  void setArgs(const char* line);            // words end at blanks, ";", tabs and line ends
  void setArgs(const zebStringList& words);  // words that belong to no key are dropped

  bool setArg(const zebString& text, const zebString& next);  // false: no key, nothing appended
  bool setArg(char key, const zebString& arg);

  bool isKey(char key) const;
  bool getArg(char key, zebString& arg) const;  // the last one counts; false, and arg stays, without the key
};

#endif
