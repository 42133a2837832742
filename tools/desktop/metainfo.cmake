# SPDX-License-Identifier: MIT
# Writes the page of software centres. Its pictures stand on the web, where the folder for browsers is: without the
# address of that it has none.
# usage: cmake [-DADDRESS=URL] -DTO=FILE -P metainfo.cmake
set(folder ${CMAKE_CURRENT_LIST_DIR})
file(READ ${folder}/org.hardsilence.hardsilence.metainfo.xml page)
if(ADDRESS)
    string(REGEX REPLACE "/$" "" ADDRESS "${ADDRESS}")
    if(NOT ADDRESS MATCHES "^https?://[A-Za-z0-9._~:/@%+=-]+$")
        message(FATAL_ERROR "'${ADDRESS}' is no web address")
    endif()
    file(STRINGS ${folder}/pictures.txt lines)
    set(pictures)
    set(type " type=\"default\"") # of the first one
    foreach(line IN LISTS lines)
        string(REGEX MATCH "^([0-9.]+) (.+)$" found "${line}")
        set(file ${ADDRESS}/pictures/beat_${CMAKE_MATCH_1}.png)
        string(APPEND pictures "    <screenshot${type}>\n      <caption>${CMAKE_MATCH_2}</caption>\n"
                               "      <image width=\"1024\" height=\"768\">${file}</image>\n    </screenshot>\n")
        set(type)
    endforeach()
    string(REPLACE "  <launchable" "  <url type=\"homepage\">${ADDRESS}/</url>\n\
  <screenshots>\n${pictures}  </screenshots>\n  <launchable" page "${page}")
endif()
file(WRITE ${TO} "${page}")
