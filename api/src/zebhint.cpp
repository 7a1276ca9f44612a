#include "zeboption.h"
#include "zebostream.h"
#include "zebsession.h"

namespace {

void title(const char* text, bool hide) {
  g_ostrm << text << (hide ? "" : " with hidden keys") << "\n";
}

}  // namespace

void zebSession::hint(char arg, bool hide) {
  const char askedForAll = hide ? 'h' : '?';
  if (arg == 1) {
    hint_quick(hide);
  } else if (arg == askedForAll) {
    hint_full(hide);
  } else {
    hint_descr(arg);
  }
}

void zebSession::hint_quick(bool hide) {
  title("QUICK HELP", hide);
  for (const zebOption* option : m_options) {
    if (!(hide && option->m_hidden)) g_ostrm << option->m_help;
  }
}

void zebSession::hint_full(bool hide) {
  title("EXTENDED HELP", hide);
  for (const zebOption* option : m_options) {
    if ((hide && option->m_hidden) || option->m_help.empty()) continue;
    g_ostrm << "\n" << option->m_help;
    if (option->m_hidden) g_ostrm << "This is hidden key used by developers only\n";
    g_ostrm << option->m_descr;
  }
}

void zebSession::hint_descr(char key) {
  g_ostrm << "EXTENDED KEY HELP\n";
  const zebOption* option = getOption(key);
  if (!option) {
    g_ostrm << "Key -" << key << " is not valid\n";
    return;
  }
  if (option->m_help.empty()) {
    g_ostrm << "Key -" << key << " is deprecated\n";
  } else {
    g_ostrm << option->m_help;
  }
  g_ostrm << (option->m_descr.empty() ? zebString("No detailed description for this key\n")
                                      : option->m_descr);
}
