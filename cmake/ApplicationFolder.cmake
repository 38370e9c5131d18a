# The application folder: everything that the program needs at run time, in one place that can
# be copied anywhere. Programs and modules are linked straight into it, data are copied there.

set(FLEETWRIGHT_APP_DIR ${CMAKE_BINARY_DIR}/FleetWright)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

file(GLOB_RECURSE delivered_data CONFIGURE_DEPENDS
     ${CMAKE_SOURCE_DIR}/data/weaps.dat ${CMAKE_SOURCE_DIR}/data/ships/*)

add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/application-data.stamp
  COMMAND ${CMAKE_COMMAND} -E make_directory ships maps shipimages ssds
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${CMAKE_SOURCE_DIR}/data/weaps.dat weaps.dat
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/data/ships ships
  COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/application-data.stamp
  WORKING_DIRECTORY ${FLEETWRIGHT_APP_DIR}
  DEPENDS ${delivered_data}
  COMMENT "Filling the application folder"
  VERBATIM)
file(MAKE_DIRECTORY ${FLEETWRIGHT_APP_DIR})
add_custom_target(application_data ALL DEPENDS ${CMAKE_BINARY_DIR}/application-data.stamp)
