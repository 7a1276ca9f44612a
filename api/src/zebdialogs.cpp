// The three dialogs that set up a run before its first test.
#include "zebalignparms.h"
#include "zebistream.h"
#include "zebmapdefault.h"
#include "zebmemory.h"
#include "zebsession.h"
#include "zebticker.h"
#include "zebtool.h"

namespace {

constexpr int boxWidth = 78;  // column of the closing star; one blank stands before the box

// A shift in front of the block would leave no vector but the first any memory.
class ShiftItem : public DefaultShift {
 public:
  using DefaultShift::DefaultShift;
  int validItem(zebString text) override {
    int bytes = DefaultShift::validItem(text);
    if (bytes < 0) refuse(text);
    return bytes;
  }
};

void writeBox(const zebString& title) {
  g_ostrm << msgErr << zebSession::getEnterTitle(title) << msgEnd;
}

// Switches the console on and shows the title, or switches it off.
bool beginDialog(bool ask, const char* title) {
  g_istrm.setIStream(ask ? &c_in : nullptr);
  if (ask) writeBox(title);
  return ask;
}

int readInt(int value, const char* name, const char* prompt = "") {
  zebDefault<int> item(value, name, prompt);
  item.fromIStream(g_istrm);
  return item.value();
}

bool readBool(bool value, const char* name, const char* yes, const char* no) {
  zebMapDefault<bool> item(value, name);
  item[true] = yes;
  item[false] = no;
  item.fromIStream(g_istrm);
  return item.value();
}

int readMethod(int value) {
  zebMapDefault<int> item(value, "Method");
  item[zebTool::methodAuto] = "Auto";
  item[zebTool::methodManual] = "Manual";
  item[zebTool::methodStatistic] = "Statistic";
  item[zebTool::methodIterative] = "Iterative";
  item.fromIStream(g_istrm);
  return item.value();
}

void readManual(zebTool& defaults) {
  int loops = 10;
  defaults.getMethodLoop(loops);
  g_tool.setMethodLoop(readInt(loops, "NumLoops"));
}

void readStatistic(zebTool& defaults) {
  int calls = 3;
  long long clocks = 10000;
  defaults.getMethodStat(calls, clocks);
  calls = readInt(calls, "NumCalls");
  g_tool.setMethodStat(calls, readInt(static_cast<int>(clocks), "TotalCpuClocks"));
}

void readIterative(zebTool& defaults) {
  int start = 1;
  int stop = 2048;
  long long clocks = 10 * zebCpuTicker::getClockFactor();
  defaults.getMethodBest(start, stop, clocks);
  start = readInt(start, "StartNumLoops");
  stop = readInt(stop, "StopNumLoops");
  g_tool.setMethodBest(start, stop, clocks);
}

// Manual and Statistic measure what they are told to and look at no accuracy.
void readAccuracy(int method) {
  if (method == zebTool::methodManual || method == zebTool::methodStatistic) return;
  int percent = readInt(5, "Accuracy", "Accuracy, %");
  // Out of range means: any accuracy will do.
  g_tool.m_wantedAccuracy = percent >= 1 && percent <= 50 ? percent * 0.01 : 500.0;
}

}  // namespace

void zebSession::readCommonData() {
  bool timing = readTimingMethod();
  bool parms = readTestParameters();
  bool offset = readDataOffset();
  if (timing || parms || offset) writeBox("End of common specifications");
}

bool zebSession::readTimingMethod() {
  zebTool defaults;
  if (initTimingMethod) {
    initTimingMethod(defaults);
  } else {
    defaults.setMethodAuto();
  }
  bool asked = beginDialog(m_askMode & askTiming, "Specify timing method, please");
  int method = readMethod(defaults.m_method);
  if (method == zebTool::methodManual) {
    readManual(defaults);
  } else if (method == zebTool::methodStatistic) {
    readStatistic(defaults);
  } else if (method == zebTool::methodIterative) {
    readIterative(defaults);
  } else {
    g_tool.setMethodAuto();
  }
  readAccuracy(method);
  return asked;
}

bool zebSession::readTestParameters() {
  if (!g_pParmList || g_pParmList->empty()) return false;
  bool asked = beginDialog(m_askMode & askParms, "Specify common test parameters, please");
  for (zebParameter* parm : *g_pParmList) {
    parm->fromIStream(g_istrm);
    parm->m_ask = false;
  }
  return asked;
}

bool zebSession::readDataOffset() {
  bool asked = beginDialog(m_askMode & askAlign, "Specify vectors alignment, please");
  bool byByte = readBool(false, "AlignVectorsBy", "byte", "element");
  zebSetAlignByByte(byByte);

  DefaultAlign align(0, "VectorAlign",
                     byByte ? "VectorAlign by Byte, 0..63" : "VectorAlign by Element, 0..63");
  align.fromIStream(g_istrm);
  zebSetVectorAlign(align.value());
  if (align.value() != 0) zebSetAlignSrc(readBool(true, "MisalignFirstVectorOnly", "yes", "no"));

  ShiftItem shift(512, "MutualVectorShift", "MutualVectorShift in Bytes, divisible by 64");
  shift.fromIStream(g_istrm);
  zebSetVectorShift(shift.value());
  return asked;
}

zebString zebSession::getEnterTitle(const zebString& title) {
  zebString stars(' ');
  stars.resize(1 + boxWidth, '*');
  stars += "\n";

  zebString middle(" *");
  int column = (80 - title.length()) / 2;
  if (column > middle.length()) middle.resize(column, ' ');
  middle += title;
  if (middle.length() < boxWidth) middle.resize(boxWidth, ' ');
  return stars + middle + "*\n" + stars;
}
