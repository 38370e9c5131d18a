# Debian builds its libraries on libstdc++, whose strings are others than those of libc++. Libraries of
# C do not mind. What little of Qt takes or gives such strings is defined by src/platform/qt/libcxx, and
# GoogleTest is built anew from Debian's sources.
if(FLEETWRIGHT_TESTS)
  set(warnings_are_errors ${CMAKE_COMPILE_WARNING_AS_ERROR})
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  set(CMAKE_COMPILE_WARNING_AS_ERROR ${warnings_are_errors})
endif()
