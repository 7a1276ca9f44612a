#include "zebtrace.h"

#include "zebostream.h"

void zebTrace::print(const zebString& label, const zebString& name) {
  g_ostrm << m_indent + "*****" + label + name + "\n";
  flush();
}

void zebTrace::traceIn(const zebString& name) {
  g_ostrm.setMsgLevel(msgTrace);
  m_indent += "*";
  print(" trace into   ", name);
  g_ostrm.restoreMsgLevel();
  insert(begin(), name);
}

void zebTrace::traceOut(const zebString& name) {
  g_ostrm.setMsgLevel(msgTrace);
  print(" trace out of ", name);
  g_ostrm.restoreMsgLevel();
  for (iterator step = begin(); !(step == end()); ++step) {
    if (!m_indent.empty()) m_indent.resize(m_indent.length() - 1, ' ');
    if (*step == name) {
      erase(begin(), ++step);
      return;
    }
  }
}

zebString zebTrace::getCurName() const {
  return empty() ? zebString() : *begin();
}

void zebTrace::flush() {
  if (static_cast<int>(g_ostrm.msgLevel()) <= static_cast<int>(g_ostrm.outLevel())) g_ostrm.flush();
}
