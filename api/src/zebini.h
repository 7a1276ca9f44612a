// zebini.h: which values does a run find in, and leave in, its ini file?
//
// The whole file is read when it is opened and, if it was opened for writing,
// written back when it is closed; nothing reaches the disk in between. Names are
// compared exactly. Comments, blank lines and lines outside of sections don't
// survive a rewrite.
#ifndef ZEBINI_H
#define ZEBINI_H

#include "zeblist.h"
#include "zebstream.h"
#include "zebstring.h"

// The value of a key that stands alone on its line.
constexpr const char* iniNoValue = "~~~";

// One line of a section.
struct zebValueItem {
  zebString m_name;
  zebString m_value;
  zebString m_comment;  // only of lines that this run has added
};

// The lines of a section, in file order. The items belong to the file.
class zebValues : public zebList<zebValueItem*> {
 public:
  zebValueItem* exist(const zebString& name) const;  // null if there is none
};

struct zebSectionItem {
  zebString m_name;
  zebValues* m_values;
};

// In file order. The items belong to the file.
class zebSections : public zebList<zebSectionItem*> {
 public:
  zebSectionItem* exist(const zebString& name) const;  // null if there is none
};

class zebIniFile {
 public:
  zebIniFile() = default;
  zebIniFile(const zebIniFile&) = delete;
  zebIniFile& operator=(const zebIniFile&) = delete;
  ~zebIniFile() { close(); }

  // A complete path. Writing creates a missing file at once. False, which has been told, if the file can't be
  // read or created; it then holds nothing and is never written.
  bool open(const zebString& name, bool write);
  void close();
  void updateFile();  // rewrites a file that was opened for writing

  static bool getSection(const zebString& line, zebString& name);
  static bool getValue(const zebString& line, zebString& name, zebString& value);

  bool sectionExist(const zebString& section) const { return m_sections.exist(section) != nullptr; }
  bool valueExist(const zebString& section, const zebString& key) const;
  zebString read(const zebString& section, zebString key, const zebString& defaultValue) const;

  // An existing key keeps its place and comment. An empty key makes the section only.
  void write(const zebString& section, zebString key, const zebString& value, const zebString& comment);
  void write(const zebString& section, const zebString& key) { write(section, key, iniNoValue, ""); }
  void write(const zebString& section) { write(section, "", "", ""); }

  zebValues* getSectionValues(const zebString& section) const;  // null if there is none
  void eraseSection(const zebString& section);
  void deleteKey(const zebString& section, const zebString& key);

 private:
  bool readFile(i_stream& in);
  void readLine(zebString line, zebSectionItem*& current);
  zebSectionItem* makeSection(const zebString& name);
  void putText(o_stream& out) const;
  void releaseItems();

  zebString m_fileName;
  zebSections m_sections;
  bool m_writeMode = false;
};

#endif
