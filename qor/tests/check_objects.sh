#!/bin/sh
# check_objects.sh OBJECT...: code paths must keep to themselves. A weak symbol may
# replace the floor's by one that needs AVX-512; code in .init_array runs on every
# processor when the library is loaded.
[ $# -gt 0 ] || { echo "no objects given"; exit 1; }
bad=0
for object; do
  weak=$(nm -C "$object" | grep -E ' [WVvwu] ') && { echo "$object: weak symbols:"; echo "$weak"; bad=1; }
  # Priority 99 is a sanitizer's, whose builds are for this machine alone.
  objdump -h "$object" | grep -E '\.(init_array|ctors)' | grep -v '\.init_array\.00099' && { echo "$object: runs at load time"; bad=1; }
done
exit $bad
