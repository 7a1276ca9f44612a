#include "zeb87.h"

#include "zebbitnames.h"
#include "zebfpu.h"

namespace {

const zebBitName s_control[] = {
    {0xC00, 0xC00, "Zero "},     {0xC00, 0x800, "Up "},     {0xC00, 0x400, "Down "},
    {0xC00, 0, "Near "},         {0x300, 0, "24 "},         {0x300, 0x200, "53 "},
    {0x300, 0x300, "64 "},       {0x01, 0x01, "Invalid "},  {0x02, 0x02, "Denormal "},
    {0x04, 0x04, "Zerodivide "}, {0x08, 0x08, "Overflow "}, {0x10, 0x10, "Underflow "},
    {0x20, 0x20, "Inexact "}};

}  // namespace

unsigned int ts87Base::getCW() const {
  return zeb_get_cw_fpu();
}

unsigned int ts87Base::getSW() const {
  return zeb_get_sw_fpu();
}

void ts87Base::set(unsigned int value, unsigned int mask) {
  clear();  // a flag that is pending would raise its signal as soon as its mask goes
  zeb_set_cw_fpu(value, mask);
}

void ts87Base::clear() {
  zeb_clear_fpu();
}

zebString ts87Base::strSW(unsigned int sw) const {
  return zebStatusNames(sw);
}

zebString ts87Base::strCW(unsigned int cw) const {
  return zebBitNames(cw, s_control);
}

zeb87::zeb87() : m_base(new ts87Base) {
  init();
}

zeb87::~zeb87() {
  delete m_base;
}

void zeb87::init() {
  m_cw = m_sw = 0;
  m_base->setDefault();
}

void zeb87::clear() {
  m_cw = m_sw = 0;
  m_base->clear();
}

void zeb87::start() {
  m_base->clear();
}

void zeb87::stop() {
  m_sw |= m_base->getSW();
  m_cw |= m_base->getCW();
}

bool zeb87::badStatus() const {
  return strSW().find("?") != zebString::npos;
}
