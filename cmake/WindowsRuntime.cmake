# What lies beside the program on Windows, so that nothing has to be installed first: Qt with its
# plugins, and the compiler's own libraries.

# fleetwright_runtime(TARGET FOLDER FILES…): delivers libraries of a folder.
function(fleetwright_runtime target folder)
  list(TRANSFORM ARGN PREPEND ${folder}/ OUTPUT_VARIABLE sources)
  fleetwright_deliver(${target} SOURCE ${folder} FILES ${ARGN} DEPENDS ${sources})
  add_dependencies(application ${target})
endfunction()

fleetwright_runtime(qt_libraries ${windows_libraries}/bin
                    Qt6Core.dll Qt6Gui.dll Qt6PrintSupport.dll Qt6Widgets.dll)
fleetwright_runtime(qt_plugins ${windows_libraries}/plugins
                    platforms/qwindows.dll styles/qwindowsvistastyle.dll)
foreach(library libgcc_s_seh-1 libssp-0 libstdc++-6 libwinpthread-1)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
                  OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  cmake_path(GET file PARENT_PATH folder)
  fleetwright_runtime(${library} ${folder} ${library}.dll)
endforeach()
