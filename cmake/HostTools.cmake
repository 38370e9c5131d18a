# Programs that the build itself runs to make data. A build for another system takes them from one
# for this system, so that the data are the same, byte for byte.
set(FLEETWRIGHT_HOST_BUILD "" CACHE PATH
    "When building for another system: a build of the preset release for this one")

# fleetwright_build_tool(NAME SOURCES… LINKS…): a program that the build runs.
function(fleetwright_build_tool name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  if(CMAKE_CROSSCOMPILING)
    set(file ${FLEETWRIGHT_HOST_BUILD}/bin/${name})
    if(NOT EXISTS ${file})
      message(FATAL_ERROR "${file} is missing: build the preset release first")
    endif()
    add_executable(${name} IMPORTED GLOBAL)
    set_target_properties(${name} PROPERTIES IMPORTED_LOCATION ${file})
  else()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINKS})
  endif()
endfunction()
