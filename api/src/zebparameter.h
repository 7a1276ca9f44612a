// zebparameter.h: what can a test or a dialog ask for, and how is the answer read, shown and stepped through?
//
// A parameter has a name, which is at once ini key, "-d" name, console item and
// label, and a prompt. This base has no value; zebdefault.h adds one value,
// zebiterator.h a list of them. A parameter without a name is neither read nor
// written.
#ifndef ZEBPARAMETER_H
#define ZEBPARAMETER_H

#include "zebstring.h"

class zebCStream;
class zebIStream;
class zebOStream;

class zebParameter {
 public:
  // An empty prompt becomes the name.
  explicit zebParameter(const zebString& name = "", const zebString& prompt = "");

  // Name, prompt and flags as the constructor sets them.
  void init(const zebString& name, const zebString& prompt);

  virtual void reset() { m_done = false; }
  virtual zebString valueString() const { return zebString(); }
  virtual zebString defaultString() const { return valueString(); }  // what the user would type for it
  virtual zebString validString() const { return zebString(); }  // words joined by "|", empty: anything goes
  virtual zebString description() const;                         // "name = value"
  virtual zebString prompt() const;                              // with the valid words in braces

  // Stepping: firstValue, then nextValue until it gives false. A plain parameter delivers its value once.
  virtual void resetIterator() { m_done = false; }
  virtual bool firstValue();
  virtual bool nextValue();

  virtual bool isDeprecatedParm() { return false; }
  virtual bool isDeprecatedValue() { return false; }
  virtual bool setDeprecatedFlag(bool) { return false; }

  virtual zebOStream& toOStream(zebOStream& o) const;      // "name=value "
  virtual int colmIndex() const { return -1; }             // a fixed table column, -1: the next one
  virtual zebCStream& toCStream(zebCStream& c) const;      // the value's cell
  virtual zebCStream& nameToCStream(zebCStream& c) const;  // the name's cell

  // Takes the value from in, whatever the source, and shows the value now in force on g_ostrm. A text that
  // doesn't convert and a signal during the input are told there and leave the value alone.
  virtual zebIStream& fromIStream(zebIStream& in);

  // Takes the value from its text. A text that doesn't convert throws zebException and changes nothing.
  virtual void translate(zebString) {}

  virtual ~zebParameter() = default;

  zebString m_name;
  zebString m_prompt;
  bool m_done;                 // plain: the value was delivered; iterator: the position is on a value
  bool m_ask;                  // false: the value is settled, fromIStream only shows it
  bool m_deprecated;           // the present value is an old one
  zebString m_deprecatedText;  // what a table shows then

 protected:
  [[noreturn]] void refuse(const zebString& text) const;  // throws "Invalid value of ..."

 private:
  void readFrom(zebIStream& in);
  zebCStream& putCell(zebCStream& c, const zebString& text) const;
};

#endif
