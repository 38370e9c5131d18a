# Debian builds its libraries on libstdc++, whose strings are others than those of libc++. Libraries of
# C do not mind. What little of Qt takes or gives such strings is defined by src/platform/qt/libcxx, and
# GoogleTest is built anew from Debian's sources.

# It knows the type of an exception by the address of what describes it. So what describes ours, and those of
# the library, is shared between a program and the modules that it loads.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/sharedTypes.list
     CONTENT "{ _ZT[IS]N11fleetwright*; _ZT[IS]St*; _ZT[IS]NSt*; };\n")
add_link_options(LINKER:--dynamic-list=${CMAKE_BINARY_DIR}/sharedTypes.list)

if(FLEETWRIGHT_TESTS)
  set(warnings_are_errors ${CMAKE_COMPILE_WARNING_AS_ERROR})
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  set(CMAKE_COMPILE_WARNING_AS_ERROR ${warnings_are_errors})
endif()
