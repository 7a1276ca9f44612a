#include "zebcstream.h"
#include "zebkeys.h"
#include "zebostream.h"

namespace {

// Bits of zebSession::m_nameMode.
constexpr int namesInResultTables = 1;
constexpr int namesInNameTable = 2;

bool isForResultTables(const zebString& arg) {
  return arg[0] == '+';
}

zebString pathText(const char* text, const zebString& arg, const zebString& ext) {
  return text + zebSession::genOutPath(arg, ext);
}

zebString dirText(const char* text, const zebString& arg) {
  if (arg.empty()) return "ignored: empty directory name";
  return text + zebSession::genDirName(arg);
}

template <class Stream>
void open(Stream& stream, const zebString& arg, const zebString& ext, bool append, zebSession* session) {
  if (!stream.addStream(zebSession::genOutPath(arg, ext), append)) session->unopenedFile();
}

}  // namespace

zebString infoNewListing(zebString arg) {
  return pathText("write console output to ", arg, extOut);
}

void applyNewListing(zebString arg, zebSession* session) {
  open(g_ostrm, arg, extOut, false, session);
}

zebString infoAddListing(zebString arg) {
  return pathText("add console output to ", arg, extOut);
}

void applyAddListing(zebString arg, zebSession* session) {
  open(g_ostrm, arg, extOut, true, session);
}

zebString infoNewTable(zebString arg) {
  return pathText("write performance result table to ", arg, extCsv);
}

void applyNewTable(zebString arg, zebSession* session) {
  open(g_cstrm, arg, extCsv, false, session);
}

zebString infoAddTable(zebString arg) {
  return pathText("add performance result table to ", arg, extCsv);
}

void applyAddTable(zebString arg, zebSession* session) {
  open(g_cstrm, arg, extCsv, true, session);
}

zebString infoNameTable(zebString arg) {
  if (isForResultTables(arg)) {
    return "add function parameter name lines to csv files defined by -r & -R keys";
  }
  return pathText("write function parameter name lines to ", arg, extName);
}

void applyNameTable(zebString arg, zebSession* session) {
  if (isForResultTables(arg)) {
    zebSession::m_nameMode |= namesInResultTables;
    return;
  }
  zebSession::m_nameMode |= namesInNameTable;
  open(g_qstrm, arg, extName, false, session);
}

zebString infoNameExit(zebString) {
  return "exit after function parameter name table creation and don't run tests\n";
}

void applyNameExit(zebString, zebSession*) {
  zebSession::m_nameExit = true;
}

zebString infoNewSummary(zebString arg) {
  return pathText("write summary table to ", arg, extSum);
}

void applyNewSummary(zebString arg, zebSession* session) {
  open(g_ustrm, arg, extSum, false, session);
}

zebString infoAddSummary(zebString arg) {
  return pathText("add summary table to ", arg, extSum);
}

void applyAddSummary(zebString arg, zebSession* session) {
  open(g_ustrm, arg, extSum, true, session);
}

zebString infoSignal(zebString arg) {
  return pathText("create file ", arg, extSgl) + " at the end of ZEB work";
}

void applySignal(zebString arg, zebSession* session) {
  session->setSglName(arg);
}

zebString infoDefName(zebString arg) {
  if (arg.empty()) return "ignored: empty default name";
  return "name ini-file and output files as " + arg + ".<proper-ext>";
}

zebString infoInDir(zebString arg) {
  return dirText("open test data files & ini-file in ", arg);
}

zebString infoOutDir(zebString arg) {
  return dirText("open output files in ", arg);
}

void applyNothing(zebString, zebSession*) {}
