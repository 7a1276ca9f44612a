#include "zebobject.h"

namespace {

zebObject s_buffer;
zebObject s_subObject;

}  // namespace

// Set before any static initialiser runs.
constinit zebObject* const MEM_OBJECT_IS_BUFFER = &s_buffer;
constinit zebObject* const MEM_OBJECT_IS_SUBOBJECT = &s_subObject;
