# The release that these sources are or follow: its version and its date, "2.0.5" and "2026-11-26", from
# the newest heading of CHANGELOG.md that has both. Whatever shows one of them takes it from here.
set(changelog ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md)
set(heading "^## ([0-9]+\\.[0-9]+\\.[0-9]+), ([0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9])$")
file(STRINGS ${changelog} release REGEX "${heading}" LIMIT_COUNT 1)
if(NOT release MATCHES "${heading}")
  message(FATAL_ERROR "CHANGELOG.md has no heading of a release as in \"## 2.0.5, 2026-11-26\"")
endif()
set(FLEETWRIGHT_VERSION ${CMAKE_MATCH_1})
set(FLEETWRIGHT_RELEASE_DATE ${CMAKE_MATCH_2})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog})

# The date as manual pages have it: "November 26, 2026".
set(months January February March April May June July August September October November December)
string(REGEX MATCH "^(....)-0?([0-9]+)-0?([0-9]+)$" date ${FLEETWRIGHT_RELEASE_DATE})
math(EXPR month "${CMAKE_MATCH_2} - 1")
list(GET months ${month} month)
set(FLEETWRIGHT_RELEASE_DAY "${month} ${CMAKE_MATCH_3}, ${CMAKE_MATCH_1}")
