// The title line of the performance and name tables.
#include "zebcstream.h"
#include "zebsession.h"
#include "zebtest.h"

void (*zebSession::m_funcTitle)() = nullptr;
void (*zebSession::m_parmsTitle)() = nullptr;

void zebFuncTitleToCStream() {
  g_cstrm << "function";
}

void zebParmsTitleToCStream() {
  for (int i = 1; i <= 8; ++i) {
    zebString cell = "Parm";
    g_cstrm << (cell << i);
  }
}

void zebSession::funcTitleToCStream() {
  (m_funcTitle ? m_funcTitle : zebFuncTitleToCStream)();
}

void zebSession::parmsTitleToCStream() {
  (m_parmsTitle ? m_parmsTitle : zebParmsTitleToCStream)();
}

void zebSession::resultTitleToCStream() {
  g_cstrm << "Comment"
          << "Clocks"
          << "per"
          << "Time (usec)"
          << "MFlops";
  if (zebTest::m_hot) g_cstrm << "Interest";
}

void zebSession::putTableTitle() {
  putTableTitleLine();
  if (!(m_nameMode & 2)) return;
  g_cstrm.swap(g_qstrm);
  putTableTitleLine();
  g_cstrm.swap(g_qstrm);
}

void zebSession::putTableTitleLine() {
  funcTitleToCStream();
  parmsTitleToCStream();
  zebTest::m_numParmsColm = g_cstrm.m_numColm;
  resultTitleToCStream();
  zebTest::m_numResultColm = g_cstrm.m_numColm - zebTest::m_numParmsColm;
  g_cstrm.lineOut(0);
}
