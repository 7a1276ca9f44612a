# The library under test: the bundled one, or another with the same names.
if(QOR_ROOT STREQUAL "")
  add_subdirectory(qor)
  return()
endif()

foreach(part qorcore qorcc)
  find_library(QOR_${part} ${part} PATHS ${QOR_ROOT} PATH_SUFFIXES lib lib64 REQUIRED NO_DEFAULT_PATH)
  add_library(${part} SHARED IMPORTED GLOBAL)
  set_target_properties(${part} PROPERTIES IMPORTED_LOCATION ${QOR_${part}}
                                           INTERFACE_INCLUDE_DIRECTORIES ${QOR_ROOT}/include)
endforeach()
