#include "moktitle.h"

#include "zebcstream.h"
#include "zebsession.h"

void mokFuncTitleToCStream() {
  g_cstrm << "funcBase"
          << "funcDataType"
          << "funcDescriptor";
}

void mokParmsTitleToCStream() {
  g_cstrm << "Len/Size"
          << "Parm1"
          << "Parm2"
          << "Parm3"
          << "Parm4"
          << "scaleFactor";
}

bool mokRegTitle() {
  zebSession::m_funcTitle = mokFuncTitleToCStream;
  zebSession::m_parmsTitle = mokParmsTitleToCStream;
  return true;
}
