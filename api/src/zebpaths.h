// zebpaths.h: where does a file name of the user lead?
//
// Relative names count from the program's directory as argv[0] tells it, not
// from the working directory.
#ifndef ZEBPATHS_H
#define ZEBPATHS_H

#include "zebstring.h"

// Endings of the default file names.
extern const zebString extIni;   // ".ini"
extern const zebString extOut;   // ".txt"
extern const zebString extCsv;   // ".csv"
extern const zebString extName;  // "_name.csv"
extern const zebString extSum;   // "_sum.csv"
extern const zebString extSgl;   // ".end"

class zebPaths {
 public:
  static zebString m_exePath;  // argv[0]
  static zebString m_defName;  // default title of all files
  static zebString m_inDir;    // with its closing separator
  static zebString m_outDir;

  static void setInDir(const zebString& dir) { m_inDir = genDirName(dir); }
  static void setOutDir(const zebString& dir) { m_outDir = genDirName(dir); }
  static void setDefName(const zebString& name);  // empty: the title of m_exePath

  static bool isAbsolutePath(const zebString& path);
  static zebString genDirName(const zebString& dir);

  // An empty name becomes the default name and ext; a name without "." gets ext.
  static zebString genPathName(const zebString& dir, const zebString& name, const zebString& ext);
  static zebString genInPath(const zebString& name, const zebString& ext);
  static zebString genOutPath(const zebString& name, const zebString& ext);

  // Put a relative path into the directory unless it begins with it already.
  static zebString getInPath(const zebString& path);
  static zebString getOutPath(const zebString& path);
};

#endif
