#include "zebistream.h"

#include "zebpaths.h"
#include "zebstringlist.h"

void zebDataList::set(const zebString& text) {
  zebString name;
  zebString value;
  text.parse(name, value, "=");
  set(name, value);
}

void zebDataList::set(zebString name, zebString value) {
  name.trim();
  value.trim();
  if (name.empty()) return;
  iterator old = find(name);
  if (old != end()) erase(old);
  push_back({name, value});
}

bool zebDataList::get(const zebString& name, zebString& value) const {
  iterator data = find(name);
  if (data == end()) return false;
  value = data->m_value;
  return true;
}

zebDataList::iterator zebDataList::find(const zebString& name) const {
  iterator it = begin();
  while (it != end() && !(it->m_name == name)) ++it;
  return it;
}

zebIStream::~zebIStream() {
  deleteIStream();
  deleteIniFile();
}

void zebIStream::setIStream(i_stream* in) {
  if (in == m_pIStream) return;
  deleteIStream();
  m_pIStream = in;
}

void zebIStream::deleteIStream() {
  if (m_pIStream != &c_in) delete m_pIStream;
  m_pIStream = nullptr;
}

bool zebIStream::setIniFile(const zebString& name, bool write) {
  deleteIniFile();
  m_pIniFile = new zebIniFile;
  m_iniWrite = write;
  return m_pIniFile->open(zebPaths::getInPath(name), write);
}

void zebIStream::deleteIniFile() {
  delete m_pIniFile;
  m_pIniFile = nullptr;
  m_iniWrite = false;
}

zebString zebIStream::setIniSection(const zebString& section) {
  zebString old = m_iniSection;
  m_iniSection = section;
  return old;
}

zebString zebIStream::getItemValue(const zebString& name, const zebString& defaultValue, zebString prompt,
                                   const zebString& comment) {
  zebString result;
  if (prompt.empty()) prompt = name;
  m_source = m_pIStream ? fromConsole : fromDefault;
  if (m_dataList.get(name, result)) {
    m_source = fromData;
  } else if (m_pIniFile) {
    result = m_pIniFile->read(m_iniSection, name, "");
    if (!result.empty()) m_source = fromIniFile;
  }
  if (m_source == fromConsole) result = getItemValue(*m_pIStream, prompt, defaultValue);
  if (m_source == fromDefault) result = defaultValue;
  if (m_iniWrite && m_pIniFile) m_pIniFile->write(m_iniSection, name, result, comment);
  return result;
}

zebString zebIStream::getItemValue(i_stream& in, const zebString& prompt, const zebString& defaultValue) {
  c_out << "\n " + prompt + " [" + defaultValue + "] = ";
  c_out.flush();
  zebString line;
  in.getline(line);
  m_source = line.empty() ? fromDefault : fromConsole;
  return line.empty() ? defaultValue : line;
}
