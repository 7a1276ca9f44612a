// mok.h: all that a source of tests needs. Include the library's headers before it.
#ifndef MOK_H
#define MOK_H

#include "mokbmpfile.h"
#include "mokfunc.h"
#include "mokimage.h"
#include "mokqor.h"
#include "mokregister.h"
#include "mokscaleiterator.h"
#include "moktest.h"
#include "moktitle.h"
#include "mokvector.h"
#include "zeb.h"

#endif
