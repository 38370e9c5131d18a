# No mark says a SIZE above 100, so the source of such an outline does, and its map gets the line here,
# as an author would write it by hand. Run in the folder that has the maps.
file(GLOB outlines "${sources}/*.svg")
foreach(outline IN LISTS outlines)
  file(STRINGS "${outline}" head LIMIT_COUNT 2)
  if(head MATCHES "data-size=\"([0-9]+)\"")
    get_filename_component(name "${outline}" NAME_WE)
    file(APPEND "maps/${name}.map" "SIZE: ${CMAKE_MATCH_1}\r\n")
  endif()
endforeach()
