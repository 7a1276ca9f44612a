#include "zebistream.h"
#include "zebkeys.h"
#include "zebtest.h"

namespace {

struct BitText {
  int bits;
  const char* text;
};

template <int n>
zebString joinBits(const BitText (&table)[n], int bits) {
  zebString s;
  for (const BitText& row : table) {
    if (bits & row.bits) s += row.text;
  }
  return s;
}

struct LetterBits {
  char letter;
  int bits;
};

// The letters count wherever they stand, so that words can be given: "Timing", "TRACE".
template <int n>
int bitsOfLetters(const LetterBits (&table)[n], const zebString& text) {
  int bits = 0;
  for (const LetterBits& row : table) {
    if (text.find(row.letter) != zebString::npos) bits |= row.bits;
  }
  return bits;
}

const LetterBits askLetters[] = {{'T', askTiming}, {'P', askParms}, {'M', askAlign}};
const BitText askTexts[] = {{askTiming, ", timing method"},
                            {askParms, ", common parameters"},
                            {askAlign, ", data misalignment"},
                            {askTests, ", each test parameters"}};

const LetterBits levelLetters[] = {{'E', 1}, {'W', 3}, {'P', 7}, {'I', 15}, {'T', 23}, {'M', 39}, {'D', 71}};
const BitText levelTexts[] = {{msgErr, "errors"},
                              {msgWarn, ",warnings"},
                              {msgPerf, ",performance results"},
                              {msgInfo, ",measurement process"},
                              {msgTrace, ",tracing info"},
                              {msgMem, ",memory info"},
                              {msgData, ",data info"}};

// Why -d can't be honoured, empty if it can.
zebString dataProblem(const zebString& arg) {
  if (arg.empty()) return "ignored: empty data argument";
  zebString name = arg.substr(0, arg.find('='));
  name.trim();
  const bool good = arg.find('=') != zebString::npos && !name.empty();
  return good ? "" : "ignored: incorrect data format";
}

zebString iniPath(const zebString& arg) {
  return zebSession::genInPath(arg, extIni);
}

}  // namespace

int getAskLevel(const zebString& arg) {
  const int bits = bitsOfLetters(askLetters, arg);
  return bits ? bits : askAll;
}

int getLevel(const zebString& arg) {
  return bitsOfLetters(levelLetters, arg);
}

zebString infoBatch(zebString) {
  return "batch mode";
}

void applyBatch(zebString, zebSession* session) {
  session->m_batch = true;
}

zebString infoAsk(zebString arg) {
  return "ask" + joinBits(askTexts, getAskLevel(arg)).substr(1) + " from console";
}

void applyAsk(zebString arg, zebSession* session) {
  session->addAskMode(getAskLevel(arg));
}

zebString infoData(zebString arg) {
  const zebString problem = dataProblem(arg);
  return problem.empty() ? "set ZEB parameter " + arg : problem;
}

void applyData(zebString arg, zebSession*) {
  if (dataProblem(arg).empty()) g_istrm.m_dataList.set(arg);
}

zebString infoReadIni(zebString arg) {
  return "read from " + iniPath(arg);
}

void applyReadIni(zebString arg, zebSession* session) {
  session->setIniMode(iniPath(arg), false);
}

zebString infoWriteIni(zebString arg) {
  return "write ZEB parameters to " + iniPath(arg) + " and exit";
}

void applyWriteIni(zebString arg, zebSession* session) {
  session->setIniMode(iniPath(arg), true);
}

zebString infoPressing(zebString) {
  return "read tested function names from ini-file if any";
}

void applyPressing(zebString, zebSession*) {
  zebTest::m_pressing = true;
}

zebString infoLevel(zebString arg) {
  const int level = getLevel(arg);
  if (level == 0) return "ignored: incorrect level of console output";
  return "write " + joinBits(levelTexts, level) + " to console";
}

void applyLevel(zebString arg, zebSession* session) {
  session->addLevelMode(getLevel(arg));
}
