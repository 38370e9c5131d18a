# What makes a fault in the program hard to turn against its user: checked buffers, a stack that
# says when it was written over and runs no code, jumps that only arrive where they may, addresses
# that differ from run to run, and no table of functions that can be written to once the program
# runs. tools/check-hardening reads it from the delivered files.

include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

# fleetwright_harden(VARIABLE FLAG): compiles everything with a flag, where the compiler has it.
function(fleetwright_harden variable flag)
  check_cxx_compiler_flag("-Werror ${flag}" ${variable})
  if(${variable})
    add_compile_options(${flag})
  endif()
endfunction()

fleetwright_harden(HAS_STACK_PROTECTOR -fstack-protector-strong)
if(WIN32)
  # The check of the stack is in a library of its own. What stands below breaks the compiler there.
  add_link_options(-fstack-protector-strong)
else()
  fleetwright_harden(HAS_STACK_CLASH_PROTECTION -fstack-clash-protection)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
    fleetwright_harden(HAS_CONTROL_FLOW_PROTECTION -fcf-protection)
  elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
    fleetwright_harden(HAS_BRANCH_PROTECTION -mbranch-protection=standard)
  endif()
endif()
# Checks of the library of C that the compiler puts in while it optimizes. The third level knows
# sizes that are known only at run time.
string(TOUPPER "${CMAKE_BUILD_TYPE}" type)
if("${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${type}}" MATCHES "-O[1-3s]")
  set(level 3)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 12)
    set(level 2)
  endif()
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level})
endif()
add_compile_options(-Werror=format-security)

# The first lines of each program come from the library of C. They return to where they were called
# from, whether it has marked them so or not.
if(HAS_CONTROL_FLOW_PROTECTION)
  set(shadow_stack shstk)
endif()
foreach(flag relro now noexecstack ${shadow_stack})
  check_linker_flag(CXX "LINKER:-z,${flag}" HAS_LINKER_${flag})
  if(HAS_LINKER_${flag})
    add_link_options("LINKER:-z,${flag}")
  endif()
endforeach()
