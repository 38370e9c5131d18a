# Copies delivered files into the application folder, and takes away what an earlier run has copied
# and is no longer wanted. Files of the user's own stay.
#
#   cmake -DSOURCE=… -DTARGET=… -DWANTED=list -DCOPIED=list -P FillApplicationFolder.cmake

cmake_minimum_required(VERSION 3.23)

file(STRINGS ${WANTED} wanted)
if(EXISTS ${COPIED})
  file(STRINGS ${COPIED} copied)
  foreach(name IN LISTS copied)
    if(NOT name IN_LIST wanted)
      file(REMOVE ${TARGET}/${name})
    endif()
  endforeach()
endif()

file(MAKE_DIRECTORY ${TARGET}/fleets ${TARGET}/ships ${TARGET}/maps ${TARGET}/shipimages ${TARGET}/ssds)
foreach(name IN LISTS wanted)
  cmake_path(GET name PARENT_PATH folder)
  file(MAKE_DIRECTORY ${TARGET}/${folder})
  file(COPY_FILE ${SOURCE}/${name} ${TARGET}/${name} ONLY_IF_DIFFERENT)
endforeach()
file(COPY_FILE ${WANTED} ${COPIED})
file(TOUCH ${COPIED})
