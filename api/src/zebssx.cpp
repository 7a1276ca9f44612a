#include "zebssx.h"

#include "zebbitnames.h"
#include "zebcpuid.h"
#include "zebfpu.h"

namespace {

const char s_absent[] = "cpu has not SSX extension";

const zebBitName s_control[] = {
    {0x6000, 0x6000, "Zero "},     {0x6000, 0x4000, "Up "},          {0x6000, 0x2000, "Down "},
    {0x6000, 0, "Near "},          {0x80, 0x80, "Invalid "},         {0x100, 0x100, "Denormal "},
    {0x200, 0x200, "Zerodivide "}, {0x400, 0x400, "Overflow "},      {0x800, 0x800, "Underflow "},
    {0x1000, 0x1000, "Inexact "},  {0x8000, 0x8000, "FlushToZero "}, {0x8000, 0, "NoFlushToZero "}};

}  // namespace

tsSSXBase::tsSSXBase() : m_present(qor_is_ssx_extension() != 0) {
  setDefault();
}

unsigned int tsSSXBase::get() const {
  return m_present ? zeb_get_ssx() : 0;
}

void tsSSXBase::set(unsigned int value, unsigned int mask) {
  if (m_present) zeb_set_ssx(value, mask);
}

void tsSSXBase::destroy() {
  if (m_present) zeb_destroy_ssx();
}

zebString tsSSXBase::strExceptionState(unsigned int status) const {
  return m_present ? zebStatusNames(status) : zebString(s_absent);
}

zebString tsSSXBase::strCW(unsigned int status) const {
  return m_present ? zebBitNames(status, s_control) : zebString(s_absent);
}

zebSSX::zebSSX() : m_base(new tsSSXBase) {
  init();
}

zebSSX::~zebSSX() {
  delete m_base;
}

void zebSSX::init() {
  m_status = 0;
  m_base->destroy();
  m_base->setDefault();
}

void zebSSX::clear() {
  m_status = 0;
  m_base->destroy();
  m_base->set(0, 0x3F);
}

void zebSSX::start() {
  m_base->destroy();
}

void zebSSX::stop() {
  m_status |= m_base->get();
}

bool zebSSX::badStatus() const {
  return strExceptionState().find("?") != zebString::npos;
}
