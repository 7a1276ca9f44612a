// zebstringlist.h: a list of texts.
#ifndef ZEBSTRINGLIST_H
#define ZEBSTRINGLIST_H

#include "zeblist.h"
#include "zebstring.h"

class zebStringList : public zebList<zebString> {};

#endif
