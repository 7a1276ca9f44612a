// zebobject.h: what the block registry asks of the owner of a block.
#ifndef ZEBOBJECT_H
#define ZEBOBJECT_H

#include "zebstring.h"

class zebObject {
 public:
  virtual int objectSize() const { return 0; }  // bytes
  virtual zebString objectInfo() const { return zebString(); }

  // Save the data, bring the saved data back, drop the copy. True on success.
  virtual bool reserveCopy() { return false; }
  virtual bool setReservedCopy() { return false; }
  virtual void deleteReservedCopy() {}

  virtual ~zebObject() = default;
};

// Owners of blocks that belong to no data object, and of parts of another object.
extern zebObject* const MEM_OBJECT_IS_BUFFER;
extern zebObject* const MEM_OBJECT_IS_SUBOBJECT;

#endif
