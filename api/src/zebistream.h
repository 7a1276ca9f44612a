// zebistream.h: where does the value of a parameter come from?
//
// From the first place that has it: the "-d" data, the ini file, the console,
// the default. A run that writes its ini file leaves there whatever came out.
#ifndef ZEBISTREAM_H
#define ZEBISTREAM_H

#include "zebini.h"
#include "zeblist.h"
#include "zebstream.h"
#include "zebstring.h"

// One "-d" key.
struct zebData {
  zebString m_name;
  zebString m_value;
};

// In order of setting; the last value of a name is the only one.
class zebDataList : public zebList<zebData> {
 public:
  void set(const zebString& text);  // "name=value"; a second "=" ends the value
  void set(zebString name, zebString value);
  bool get(const zebString& name, zebString& value) const;  // false, and value stays, if the name isn't there
  iterator find(const zebString& name) const;
};

enum zebSource : int { fromDefault = 0, fromConsole = 1, fromIniFile = 2, fromData = 3, fromNowhere = 4 };

class zebIStream {
 public:
  zebIStream() = default;
  zebIStream(const zebIStream&) = delete;
  zebIStream& operator=(const zebIStream&) = delete;
  virtual ~zebIStream();  // writes the ini file

  void setIStream(i_stream* in);  // owned unless it is c_in; null switches asking off
  void deleteIStream();

  bool setIniFile(const zebString& name, bool write);  // false if it can't be read or created
  void deleteIniFile();                                // writes it
  zebString setIniSection(const zebString& section);   // returns the section before

  // The comment goes to the ini file, beside a value that is new there.
  zebString getItemValue(const zebString& name, const zebString& defaultValue, zebString prompt,
                         const zebString& comment);

  // Asks on the console, past all levels and listings. An empty line and the end of the input give the
  // default.
  zebString getItemValue(i_stream& in, const zebString& prompt, const zebString& defaultValue);

  i_stream* m_pIStream = nullptr;    // null: nothing is asked
  zebIniFile* m_pIniFile = nullptr;  // owned; null: no ini file
  zebDataList m_dataList;
  zebString m_iniSection = "Zeb";
  bool m_iniWrite = false;
  int m_source = fromNowhere;  // of the last value
};

extern zebIStream g_istrm;

#endif
