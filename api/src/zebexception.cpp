#include "zebexception.h"

#include <cstdio>

zebException::zebException(const zebString& text) {
  snprintf(m_info, sizeof m_info, "%s", text.c_str());
  snprintf(m_msg, sizeof m_msg, "--QOR. Exception: %s", text.c_str());
}

zebException::zebException(const char* text) : m_info{} {
  snprintf(m_msg, sizeof m_msg, "--QOR. Signal: %s", text);
}
