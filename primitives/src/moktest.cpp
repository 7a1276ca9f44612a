#include "moktest.h"

#include "mokimage.h"
#include "moktiming.h"
#include "zebcacheiterator.h"
#include "zebcstream.h"
#include "zebhooks.h"
#include "zebostream.h"

bool mokTest::m_checkErrorsOnly = false;

mokTest::mokTest(TestFuncCall call, TestFuncCall init, TestFuncLoop loop, TestFuncStat stat,
                 const zebString& name, const zebString& file, const zebString& info)
    : zebTest(call, init, loop, stat, name, file, info) {
  m_func = m_name;
}

zebResult mokTest::run() {
  m_checkErrorsOnly = false;
  // Each test draws the same random data, whatever ran before it.
  mokVector::m_seed = 7;
  return zebTest::run();
}

int mokTest::compareFunc(const zebTest* other) const {
  return m_func.compare(mokFunc(other->m_name));
}

void mokTest::funcToCstrm() {
  g_cstrm << m_func.prefix() + m_func.baseName() << m_func.typeName() << m_func.descrName();
}

bool mokTest::isFloatFunction() {
  const bool hasFloats = m_name.find("32f") != zebString::npos || m_name.find("64f") != zebString::npos;
  return zebTest::isFloatFunction() && hasFloats;
}

zebString mokTest::regInfo() {
  const zebString text = zebTest::regInfo();
  const int at = text.find("ZEB_");
  if (at == zebString::npos) return text;
  return text.substr(0, at) + "MOK_" + text.substr(at + 4);
}

zebResult mokTest::checkStatus(QorStatus status, const zebString& name) {
  if (status == qorStsNoErr) return resOk;
  const bool failed = status < qorStsNoErr;
  if (!failed && m_checkErrorsOnly) return resOk;

  g_ostrm << (failed ? msgErr : msgWarn) << (failed ? "--QOR ERROR. " : "--QOR WARNING. ")
          << "status = " << status;
  if (!name.empty()) g_ostrm << " in " << name;
  g_ostrm << ": " << qor_GetStatusString(status) << "\n" << msgEnd;

  const zebResult result = failed ? resLibError : resLibWarning;
  foldResult(result);
  return result;
}

zebResult mokCheckCall(QorStatus status, const char* func) {
  return status == qorStsNoErr ? resOk : mokTest::checkStatus(status, func);
}

void mokTest::regCacheParm(zebIterator<QoriSize>& parm, mokImage& image, CacheSetter setter) {
  regCacheObject(parm, &image, setter);
}

void mokTest::regCacheParm(zebIterator<QoriSize>& parm, CacheSetter setter) {
  regCacheObject(parm, nullptr, setter);
}

void mokTest::regCacheObject(zebIterator<QoriSize>& parm, zebObject* object, CacheSetter setter) {
  if (!m_cache || m_pCache) {
    m_parms.push_back(&parm);
    return;
  }
  m_pCache = new zebCacheIteratorSize(parm, object, setter);
  m_parms.push_back(m_pCache);
}
