# SPDX-License-Identifier: GPL-3.0-or-later
# Puts the text of the licence where a summary says @LICENSE@: cmake -D PAGE=… -D LICENSE=… -D OUT=… -P fill.cmake
cmake_minimum_required(VERSION 3.25)

file(READ ${PAGE} page)
file(READ ${LICENSE} license)
string(REPLACE "&" "&amp;" license "${license}")
string(REPLACE "<" "&lt;" license "${license}")
string(REPLACE ">" "&gt;" license "${license}")
string(FIND "${page}" "@LICENSE@" place)
if(place EQUAL -1)
    message(FATAL_ERROR "${PAGE} has no place for the licence")
endif()
string(REPLACE "@LICENSE@" "${license}" page "${page}")
file(WRITE ${OUT} "${page}")
