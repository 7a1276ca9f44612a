#include "zebparameter.h"

#include <cstdio>

#include "zebcstream.h"
#include "zebexception.h"
#include "zebistream.h"
#include "zebostream.h"
#include "zebsignal.h"

// What happened, without the label of msg(): the exception of a fixed text has no info().
static zebString reasonOf(zebException& e) {
  zebString info = e.info();
  if (!info.empty()) return info;
  zebString label("Signal: ");
  zebString msg = e.msg();
  return msg.substr(msg.find(label) + label.length());
}

zebParameter::zebParameter(const zebString& name, const zebString& prompt) {
  init(name, prompt);
}

void zebParameter::init(const zebString& name, const zebString& prompt) {
  m_name = name;
  m_prompt = prompt.empty() ? name : prompt;
  m_done = false;
  m_ask = true;
  m_deprecated = false;
  m_deprecatedText = "";
}

zebString zebParameter::description() const {
  return m_name + " = " + defaultString();
}

zebString zebParameter::prompt() const {
  zebString valid = validString();
  return valid.empty() ? m_prompt : m_prompt + " {" + valid + "}";
}

bool zebParameter::firstValue() {
  resetIterator();
  return nextValue();
}

bool zebParameter::nextValue() {
  m_done = !m_done;
  return m_done;
}

zebOStream& zebParameter::toOStream(zebOStream& o) const {
  if (!m_name.empty()) o << m_name << "=" << valueString() << " ";
  return o;
}

zebCStream& zebParameter::toCStream(zebCStream& c) const {
  zebString text;
  if (!m_name.empty()) text = m_deprecated ? m_deprecatedText : valueString();
  return putCell(c, text);
}

zebCStream& zebParameter::nameToCStream(zebCStream& c) const {
  return putCell(c, m_name);
}

zebCStream& zebParameter::putCell(zebCStream& c, const zebString& text) const {
  int column = colmIndex();
  if (column < 0) return c << text;
  c.setColm(column, text);
  return c;
}

zebIStream& zebParameter::fromIStream(zebIStream& in) {
  if (m_name.empty()) return in;
  OutputLevel level = g_ostrm.outLevel();
  if (m_ask) {
    // Whoever is asked sees the answer, whatever the level of the tests.
    if (in.m_pIStream) g_ostrm.setOutLevel(outPerf);
    readFrom(in);
  }
  g_ostrm << " " << description() << "\n";
  if (m_ask && in.m_source == fromConsole) c_out.flush();
  g_ostrm.setOutLevel(level);
  return in;
}

void zebParameter::readFrom(zebIStream& in) {
  try {
    zebCatchSignals([&] { translate(in.getItemValue(m_name, defaultString(), prompt(), validString())); });
  } catch (zebException& e) {
    g_ostrm << "-" << reasonOf(e) << "\n";
  }
}

void zebParameter::refuse(const zebString& text) const {
  throw zebException("Invalid value of " + m_name + " = " + text);
}
