# GoogleTest as installed, which is for 64 bits; for 32 from the sources that the same package brings.
include(GoogleTest)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  find_package(GTest REQUIRED)
  return()
endif()

set(INSTALL_GTEST OFF CACHE BOOL "")
set(BUILD_GMOCK OFF CACHE BOOL "")
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
if(NOT TARGET GTest::gtest_main)
  add_library(GTest::gtest_main ALIAS gtest_main)
endif()
