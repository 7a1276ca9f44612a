#include "zebostream.h"

#include "zebgeometry.h"

zebOStream::~zebOStream() {
  close();
}

bool zebOStream::addStream(const zebString& name, bool append) {
  o_stream* const stream = createOStream(name, append);
  if (stream) push_back(stream);
  return stream;
}

void zebOStream::setMsgLevel(MessageLevel level) {
  m_msgStack.insert(m_msgStack.begin(), m_msgLevel);
  m_msgLevel = level;
}

void zebOStream::restoreMsgLevel() {
  if (m_msgStack.empty()) {
    m_msgLevel = msgErr;
    return;
  }
  m_msgLevel = *m_msgStack.begin();
  m_msgStack.erase(m_msgStack.begin());
}

bool zebOStream::beginMessage(MessageLevel l) {
  if (static_cast<int>(l) > static_cast<int>(m_outLevel)) return false;
  setMsgLevel(l);
  return true;
}

void zebOStream::endMessageFlush() {
  endMessage();
  flush();
}

void zebOStream::flush() {
  for (o_stream* stream : *this) stream->flush();
}

void zebOStream::close() {
  for (o_stream* stream : *this) stream->finish();
}

zebOStream& operator<<(zebOStream& out, MessageLevel l) {
  if (l == msgEnd) {
    out.endMessage();
  } else if (l == msgEndFlush) {
    out.endMessageFlush();
  } else {
    out.setMsgLevel(l);
  }
  return out;
}

zebOStream& operator<<(zebOStream& out, const zebString& s) {
  if (!(static_cast<int>(out.msgLevel()) & static_cast<int>(out.outLevel()))) return out;
  for (o_stream* stream : out) *stream << s;
  return out;
}

zebOStream& operator<<(zebOStream& out, const char* value) {
  return tsOutTpl(out, value);
}
zebOStream& operator<<(zebOStream& out, char value) {
  return tsOutTpl(out, value);
}
zebOStream& operator<<(zebOStream& out, int value) {
  return tsOutTpl(out, value);
}
zebOStream& operator<<(zebOStream& out, unsigned int value) {
  return tsOutTpl(out, value);
}
zebOStream& operator<<(zebOStream& out, unsigned char value) {
  return tsOutTpl(out, value);
}
zebOStream& operator<<(zebOStream& out, float value) {
  return tsOutTpl(out, value);
}
zebOStream& operator<<(zebOStream& out, double value) {
  return tsOutTpl(out, value);
}
zebOStream& operator<<(zebOStream& out, QoriSize value) {
  return tsOutTpl(out, value);
}
