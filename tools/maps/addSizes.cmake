# No mark says a SIZE above 100, and nothing covers the mark of a track that bitmap sheets do not have.
# The source of such an outline says both, and its map gets the lines here, as an author would write
# them by hand. Run in the folder that has the maps.
file(GLOB outlines "${sources}/*.svg")
foreach(outline IN LISTS outlines)
  file(STRINGS "${outline}" track REGEX "data-size=")
  if(track MATCHES "data-size=\"([0-9]+)\" x=\"([0-9]+)\" y=\"([0-9]+)\"")
    get_filename_component(name "${outline}" NAME_WE)
    file(APPEND "maps/${name}.map"
         "DAMROW: (${CMAKE_MATCH_2},${CMAKE_MATCH_3})\r\nSIZE: ${CMAKE_MATCH_1}\r\n")
  endif()
endforeach()
