#include "zebini.h"

#include "zebinirewrite.h"
#include "zebostream.h"

namespace {

template <class Item>
Item* findItem(const zebList<Item*>& items, const zebString& name) {
  for (Item* item : items) {
    if (item->m_name == name) return item;
  }
  return nullptr;
}

// Takes the item out of the list; null if there is none of that name.
template <class Item>
Item* takeItem(zebList<Item*>& items, const zebString& name) {
  for (auto it = items.begin(); it != items.end(); ++it) {
    if (!((*it)->m_name == name)) continue;
    Item* item = *it;
    items.erase(it);
    return item;
  }
  return nullptr;
}

void deleteSection(zebSectionItem* section) {
  for (zebValueItem* item : *section->m_values) delete item;
  delete section->m_values;
  delete section;
}

void setValue(zebValues& values, const zebString& key, const zebString& value, const zebString& comment) {
  if (zebValueItem* item = values.exist(key)) {
    item->m_value = value;
  } else {
    values.push_back(new zebValueItem{key, value, comment});
  }
}

zebString lineOf(const zebValueItem& item) {
  if (item.m_value == iniNoValue) return item.m_name + "\n";
  zebString line = item.m_name + "=" + item.m_value;
  if (!item.m_comment.empty()) line += "\t// " + item.m_comment;
  return line + "\n";
}

}  // namespace

zebValueItem* zebValues::exist(const zebString& name) const {
  return findItem(*this, name);
}

zebSectionItem* zebSections::exist(const zebString& name) const {
  return findItem(*this, name);
}

bool zebIniFile::open(const zebString& name, bool write) {
  close();
  m_fileName = name;
  bool good = false;
  i_stream in(name, streamRead | streamFullName, !write);
  if (in.m_file) {
    good = readFile(in);
  } else if (write) {
    o_stream created(name, streamWrite | streamFullName, true);
    good = created.m_file != nullptr;
  }
  m_writeMode = write && good;
  return good;
}

void zebIniFile::close() {
  updateFile();
  releaseItems();
  m_writeMode = false;
}

void zebIniFile::updateFile() {
  if (!m_writeMode) return;
  zebIniRewrite file(m_fileName);
  if (!file.stream().m_file) return;
  putText(file.stream());
  file.finish();
}

void zebIniFile::putText(o_stream& out) const {
  for (zebSectionItem* section : m_sections) {
    out << "\n[" + section->m_name + "]\n";
    for (zebValueItem* item : *section->m_values) out << lineOf(*item);
  }
}

// A file that opens and yet can't be read, such as a directory, must not be taken for an empty one: writing
// would destroy it. A device may have no end.
bool zebIniFile::readFile(i_stream& in) {
  const int mostPieces = 1 << 16;  // a line is one or more; ten times what all tests of a suite write
  zebSectionItem* current = nullptr;
  zebString line;
  char piece[512];
  bool eof = false;
  for (int i = 0; !eof && i < mostPieces; ++i) {
    const bool complete = getlinebuf(in.m_file, piece, sizeof piece, eof);
    line += piece;
    if (!complete) continue;
    readLine(line, current);
    line = "";
  }
  if (eof && !ferror(in.m_file)) return true;
  g_ostrm << msgErr << "-- Can't read file " << m_fileName << (eof ? "" : ": it is too long") << "\n"
          << msgEnd;
  releaseItems();
  return false;
}

void zebIniFile::readLine(zebString line, zebSectionItem*& current) {
  int comment = line.find("//");
  if (comment != zebString::npos) line = line.substr(0, comment);
  line.trim();
  if (line.empty()) return;
  zebString name;
  zebString value;
  if (getSection(line, name)) {
    name.trim();
    current = makeSection(name);
  } else if (current) {
    getValue(line, name, value);
    name.trim();
    value.trim();
    setValue(*current->m_values, name, value, "");
  }
}

bool zebIniFile::getSection(const zebString& line, zebString& name) {
  int open = line.find("[");
  if (open == zebString::npos) return false;
  int close = line.find("]", open);
  if (close == zebString::npos) return false;
  name = line.substr(open + 1, close - open - 1);
  return true;
}

bool zebIniFile::getValue(const zebString& line, zebString& name, zebString& value) {
  int cut = line.find("=");
  name = cut == zebString::npos ? line : line.substr(0, cut);
  value = cut == zebString::npos ? zebString(iniNoValue) : line.substr(cut + 1);
  return true;
}

bool zebIniFile::valueExist(const zebString& section, const zebString& key) const {
  zebValues* values = getSectionValues(section);
  return values && values->exist(key);
}

zebString zebIniFile::read(const zebString& section, zebString key, const zebString& defaultValue) const {
  key.trim();
  zebValues* values = getSectionValues(section);
  zebValueItem* item = values ? values->exist(key) : nullptr;
  return item ? item->m_value : defaultValue;
}

void zebIniFile::write(const zebString& section, zebString key, const zebString& value,
                       const zebString& comment) {
  zebSectionItem* item = makeSection(section);
  key.trim();
  if (!key.empty()) setValue(*item->m_values, key, value, comment);
}

zebSectionItem* zebIniFile::makeSection(const zebString& name) {
  if (zebSectionItem* section = m_sections.exist(name)) return section;
  zebSectionItem* section = new zebSectionItem{name, new zebValues};
  m_sections.push_back(section);
  return section;
}

zebValues* zebIniFile::getSectionValues(const zebString& section) const {
  zebSectionItem* item = m_sections.exist(section);
  return item ? item->m_values : nullptr;
}

void zebIniFile::eraseSection(const zebString& section) {
  if (zebSectionItem* item = takeItem(m_sections, section)) deleteSection(item);
}

void zebIniFile::deleteKey(const zebString& section, const zebString& key) {
  if (zebValues* values = getSectionValues(section)) delete takeItem(*values, key);
}

void zebIniFile::releaseItems() {
  for (zebSectionItem* section : m_sections) deleteSection(section);
  m_sections.clear();
}
