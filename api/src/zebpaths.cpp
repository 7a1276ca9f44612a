#include "zebpaths.h"

const zebString extIni = ".ini";
const zebString extOut = ".txt";
const zebString extCsv = ".csv";
const zebString extName = "_name.csv";
const zebString extSum = "_sum.csv";
const zebString extSgl = ".end";

zebString zebPaths::m_exePath;
zebString zebPaths::m_defName;
zebString zebPaths::m_inDir;
zebString zebPaths::m_outDir;

namespace {

bool isSeparator(char c) {
  return c == '/' || c == '\\';
}

zebString getPath(const zebString& dir, const zebString& path) {
  if (zebPaths::isAbsolutePath(path)) return path;
  if (dir.empty()) return zebPaths::m_exePath.getFileDir() + path;
  return path.find(dir) == 0 ? path : dir + path;
}

}  // namespace

void zebPaths::setDefName(const zebString& name) {
  m_defName = name.empty() ? m_exePath.getFileTitle() : name;
}

bool zebPaths::isAbsolutePath(const zebString& path) {
  return isSeparator(path[0]) || (path.length() > 1 && path[1] == ':');
}

zebString zebPaths::genDirName(const zebString& dir) {
  const zebString exeDir = m_exePath.getFileDir();
  if (dir.empty()) return exeDir;
  const zebString closed = isSeparator(dir[dir.length() - 1]) ? dir : dir + "/";
  return isAbsolutePath(closed) ? closed : exeDir + closed;
}

zebString zebPaths::genPathName(const zebString& dir, const zebString& name, const zebString& ext) {
  if (isAbsolutePath(name)) return name;
  if (name.empty()) return dir + m_defName + ext;
  return dir + (name.find(".") == zebString::npos ? name + ext : name);
}

zebString zebPaths::genInPath(const zebString& name, const zebString& ext) {
  return genPathName(m_inDir, name, ext);
}

zebString zebPaths::genOutPath(const zebString& name, const zebString& ext) {
  return genPathName(m_outDir, name, ext);
}

zebString zebPaths::getInPath(const zebString& path) {
  return getPath(m_inDir, path);
}

zebString zebPaths::getOutPath(const zebString& path) {
  return getPath(m_outDir, path);
}
