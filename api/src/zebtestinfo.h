// zebtestinfo.h: what a test's registration tells of it.
#ifndef ZEBTESTINFO_H
#define ZEBTESTINFO_H

#include "zebstring.h"

struct zebTestInfo {
  zebTestInfo() = default;

  // Cuts class/description/macro at the first two "/"; absent parts stay empty.
  explicit zebTestInfo(const zebString& info);

  zebString m_testName;  // the test's class
  zebString m_description;
  zebString m_macro;  // that registered it
};

#endif
