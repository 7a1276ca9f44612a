// zebostream.h: which text reaches the console and the listings?
//
// Each piece of text has a message level, one bit; the stream has an output
// level, a mask of bits. Text whose bit isn't in the mask is dropped. A message
// is written as: level, pieces, msgEnd.
#ifndef ZEBOSTREAM_H
#define ZEBOSTREAM_H

#include "qordefs.h"
#include "zeblist.h"
#include "zebstream.h"
#include "zebstring.h"

enum MessageLevel : int {
  msgErr = 1,  // errors, and the block reports
  msgWarn = 2,
  msgPerf = 4,  // figures, and all text that names no level
  msgInfo = 8,
  msgTrace = 16,
  msgMem = 32,
  msgData = 64,
  msgEnd = -10,       // pops the level
  msgEndFlush = -11,  // pops the level and flushes all files
};

// A mask of message levels.
enum OutputLevel : int { outErr = 1, outWarn = 3, outPerf = 7 };

class zebOStream : public zebList<o_stream*> {
 public:
  zebOStream() : m_outLevel(outErr), m_msgLevel(msgPerf) {}
  zebOStream(const zebOStream&) = delete;
  zebOStream& operator=(const zebOStream&) = delete;
  ~zebOStream() override;  // closes the files and leaves the objects

  bool addStream(const zebString& name, bool append);  // a complete name; false when it can't be opened
  void setOutLevel(OutputLevel level) { m_outLevel = level; }
  OutputLevel outLevel() const { return m_outLevel; }
  void setMsgLevel(MessageLevel level);  // saves the present level
  MessageLevel msgLevel() const { return m_msgLevel; }
  void restoreMsgLevel();

  // False when l is numerically above the output level, so that the text needn't be made. True doesn't
  // promise that the text will be seen: the mask may lack that bit.
  bool beginMessage(MessageLevel l);
  void endMessage() { restoreMsgLevel(); }
  void endMessageFlush();
  void flush();
  void close();  // tells files that weren't written to their end

 private:
  OutputLevel m_outLevel;
  MessageLevel m_msgLevel;
  zebList<MessageLevel> m_msgStack;  // last saved first
};

zebOStream& operator<<(zebOStream& out, MessageLevel l);
zebOStream& operator<<(zebOStream& out, const zebString& s);

// Every type prints as its conversion to zebString formats it.
template <class T>
zebOStream& tsOutTpl(zebOStream& out, const T& value) {
  zebString s;
  s << value;
  return out << s;
}

zebOStream& operator<<(zebOStream& out, const char* value);
zebOStream& operator<<(zebOStream& out, char value);
zebOStream& operator<<(zebOStream& out, int value);
zebOStream& operator<<(zebOStream& out, unsigned int value);
zebOStream& operator<<(zebOStream& out, unsigned char value);
zebOStream& operator<<(zebOStream& out, float value);
zebOStream& operator<<(zebOStream& out, double value);
zebOStream& operator<<(zebOStream& out, QoriSize value);

extern zebOStream g_ostrm;  // console and text listings

#endif
