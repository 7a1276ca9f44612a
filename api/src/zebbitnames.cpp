#include "zebbitnames.h"

namespace {

const zebBitName s_status[] = {{0x01, 0x01, "?Invalid "},    {0x02, 0x02, "?Denormal "},
                               {0x04, 0x04, "?Zerodivide "}, {0x08, 0x08, "?Overflow "},
                               {0x10, 0x10, "?Underflow "},  {0x20, 0x20, "_Inexact "}};

}  // namespace

zebString zebStatusNames(unsigned int status) {
  const zebString names = zebBitNames(status, s_status);
  return names.empty() ? zebString("Ok") : names;
}
