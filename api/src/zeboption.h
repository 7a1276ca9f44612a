// zeboption.h: what is known of one key?
#ifndef ZEBOPTION_H
#define ZEBOPTION_H

#include "zebstring.h"

class zebSession;

struct zebOption {
  char m_key;
  bool m_hidden;                       // for developers: only the help of -? shows it
  zebString m_help;                    // short help, empty for a key that has none
  zebString (*m_info)(zebString arg);  // the text of the echo; called before m_apply
  void (*m_apply)(zebString arg, zebSession* session);
  zebString m_descr;  // extended help
};

#endif
