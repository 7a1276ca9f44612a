// zeb.h: all that a source of plain tests needs.
#ifndef ZEB_H
#define ZEB_H

#include "zebcacheiterator.h"
#include "zebcstream.h"
#include "zebdefault.h"
#include "zebenumiterator.h"
#include "zebexception.h"
#include "zebhooks.h"
#include "zebinfotest.h"
#include "zebistream.h"
#include "zebiterator.h"
#include "zebmapdefault.h"
#include "zebmapiterator.h"
#include "zebmemory.h"
#include "zebregister.h"
#include "zebsession.h"
#include "zebstepiterator.h"
#include "zebtest.h"
#include "zebtestlist.h"
#include "zebticker.h"
#include "zebtrace.h"

#endif
