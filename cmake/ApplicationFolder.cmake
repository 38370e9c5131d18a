# The application folder: everything that the program needs at run time, in one place that can
# be copied anywhere. Programs and modules are linked straight into it, data are copied there.

set(FLEETWRIGHT_APP_DIR ${CMAKE_BINARY_DIR}/FleetWright)
set(FLEETWRIGHT_PICTURES_DIR ${CMAKE_BINARY_DIR}/pictures)  # drawn by tools/pictures
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

set(data_folder ${CMAKE_SOURCE_DIR}/data)
file(GLOB_RECURSE delivered_data CONFIGURE_DEPENDS RELATIVE ${data_folder}
     ${data_folder}/weaps.dat ${data_folder}/ships/*)
list(JOIN delivered_data "\n" delivered_lines)
# Written when it changes, so that a file that goes is a reason to copy, too.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/application-data.txt CONTENT "${delivered_lines}\n")
list(TRANSFORM delivered_data PREPEND ${data_folder}/)

add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/application-data.stamp
  COMMAND ${CMAKE_COMMAND}
          -DSOURCE=${data_folder} -DTARGET=${FLEETWRIGHT_APP_DIR}
          -DWANTED=${CMAKE_BINARY_DIR}/application-data.txt
          -DCOPIED=${CMAKE_BINARY_DIR}/application-data.stamp
          -P ${CMAKE_SOURCE_DIR}/cmake/FillApplicationFolder.cmake
  DEPENDS ${delivered_data} ${CMAKE_BINARY_DIR}/application-data.txt
          ${CMAKE_SOURCE_DIR}/cmake/FillApplicationFolder.cmake
  COMMENT "Filling the application folder"
  VERBATIM)
file(MAKE_DIRECTORY ${FLEETWRIGHT_APP_DIR})
add_custom_target(application_data ALL DEPENDS ${CMAKE_BINARY_DIR}/application-data.stamp)
