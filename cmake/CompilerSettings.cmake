# What every target is compiled with. Warnings become errors through
# CMAKE_COMPILE_WARNING_AS_ERROR, which the development presets set.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Where sources are compiled together, more at a time than usual: most of the time goes to headers.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 24)

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                    -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 raises false alarms about std::string's own copying.
  add_compile_options(-Wno-array-bounds -Wno-restrict -Wno-stringop-overflow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND NOT FLEETWRIGHT_LIBCXX)
  # GCC's library calls what its own algorithms use deprecated.
  add_compile_options(-Wno-deprecated-declarations)
endif()
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Its sources are included, which makes them look like headers.
  add_compile_options(-Wno-subobject-linkage)
elseif(CMAKE_UNITY_BUILD)
  # Each has names of its own, which those behind it do not mean.
  add_compile_options(-Wno-shadow)
endif()
# Figures must not depend on the compiler's taste in contracting a * b + c.
add_compile_options(-ffp-contract=off)

if(FLEETWRIGHT_HARDENING)
  include(Hardening)
endif()

if(FLEETWRIGHT_SANITIZE)
  add_compile_definitions(FLEETWRIGHT_SANITIZED)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  if(NOT FLEETWRIGHT_FUZZ)
    # Checks of each use of a pointer are a fifth of the time that building takes; nearly all that
    # they find ends in memory that is not the object's, which the address sanitizer sees.
    # And frames on the heap, which would show the use of what a call has left behind, a tenth.
    add_compile_options(-fno-sanitize=alignment,null,object-size,vptr
                        -fsanitize-address-use-after-return=never)
    set(sanitizer_options ${CMAKE_SOURCE_DIR}/cmake/sanitizerOptions.cpp)  # of each program
    # What tests do most of; to optimize the rest takes longer than it saves.
    set(optimized_libraries base core paper plain_pictures ssd)
  endif()
  add_link_options(-fsanitize=address,undefined)
endif()

# fleetwright_library(NAME SOURCES… LINKS…): one library a folder. Its headers are reached by
# their bare names, and only by the targets that link it: an arrow that the architecture does
# not draw does not compile.
function(fleetwright_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${arg_LINKS})
  if(name IN_LIST optimized_libraries)
    target_compile_options(${name} PRIVATE -O1)
  endif()
endfunction()
