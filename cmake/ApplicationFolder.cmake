# The application folder: everything that the program needs at run time, in one place that can
# be copied anywhere. Programs and modules are linked straight into it, data are copied there.

set(FLEETWRIGHT_APP_DIR ${CMAKE_BINARY_DIR}/FleetWright)
set(FLEETWRIGHT_PICTURES_DIR ${CMAKE_BINARY_DIR}/pictures)  # drawn by tools/pictures
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
file(MAKE_DIRECTORY ${FLEETWRIGHT_APP_DIR})

# fleetwright_deliver(TARGET SOURCE folder FILES names… DEPENDS files…): a target that copies files
# of a folder to the same names in the application folder. It also takes away what it has copied
# there before and is no longer wanted.
function(fleetwright_deliver target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "SOURCE" "FILES;DEPENDS")
  set(wanted ${CMAKE_BINARY_DIR}/${target}.txt)
  set(copied ${CMAKE_BINARY_DIR}/${target}.stamp)
  list(JOIN arg_FILES "\n" lines)
  # Written when it changes, so that a file that goes is a reason to copy, too.
  file(CONFIGURE OUTPUT ${wanted} CONTENT "${lines}\n")
  set(script ${CMAKE_SOURCE_DIR}/cmake/FillApplicationFolder.cmake)
  add_custom_command(
    OUTPUT ${copied}
    COMMAND ${CMAKE_COMMAND} -DSOURCE=${arg_SOURCE} -DTARGET=${FLEETWRIGHT_APP_DIR}
            -DWANTED=${wanted} -DCOPIED=${copied} -P ${script}
    DEPENDS ${arg_DEPENDS} ${wanted} ${script}
    COMMENT "Filling the application folder: ${target}"
    VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${copied})
endfunction()

set(data_folder ${CMAKE_SOURCE_DIR}/data)
file(GLOB_RECURSE delivered_data CONFIGURE_DEPENDS RELATIVE ${data_folder}
     ${data_folder}/weaps.dat ${data_folder}/fleets/* ${data_folder}/ships/*)
list(TRANSFORM delivered_data PREPEND ${data_folder}/ OUTPUT_VARIABLE data_sources)
fleetwright_deliver(application_data SOURCE ${data_folder} FILES ${delivered_data}
                    DEPENDS ${data_sources})
