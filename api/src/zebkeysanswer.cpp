#include "zebkeys.h"

namespace {

constexpr char shortHelp = 1;  // in s_hintArg, where otherwise a key stands

void askForHelp(const zebString& arg, bool hide) {
  s_hintHide = hide;
  s_hintArg = arg.empty() ? shortHelp : arg[0];
}

zebString helpText(const zebString& arg, char all, const char* shortText, const char* fullText) {
  if (arg.empty()) return shortText;
  if (arg[0] == all) return fullText;
  return zebString("type extended help for -") + arg[0] + " key and exit";
}

}  // namespace

zebString infoEnumerate(zebString arg) {
  // Only help hides an enumeration; the version is told along with it.
  if (zebSession::m_exitLevel == exitByHelp) return zebSession::getExitInfo();
  if (arg == "+") return "enumerate applied and not applied library functions and exit";
  if (arg == "-") return "enumerate not applied library functions and exit";
  return "enumerate tested functions and exit";
}

void applyEnumerate(zebString arg, zebSession* session) {
  session->setEnumMode(arg == "+" ? 1 : arg == "-" ? -1 : 0);
}

zebString infoVersion(zebString) {
  return "type the version number of the Zeb and exit";
}

void applyVersion(zebString, zebSession*) {
  s_version = true;
}

zebString infoHelp(zebString arg) {
  return helpText(arg, 'h', "type short help and exit", "type extended help and exit");
}

void applyHelp(zebString arg, zebSession*) {
  askForHelp(arg, true);
}

zebString infoHiddenHelp(zebString arg) {
  return helpText(arg, '?', "type short help with hidden key sand exit",
                  "type extended help with hidden keys and exit");
}

void applyHiddenHelp(zebString arg, zebSession*) {
  askForHelp(arg, false);
}
