# SPDX-License-Identifier: GPL-3.0-or-later
# Cross-builds for Windows with mingw-w64. HALVANE_QT names the folder of the Qt made for it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The posix variants: only their library has the threads of C++.
set(prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES HALVANE_QT)
if(NOT HALVANE_QT)
    message(FATAL_ERROR "HALVANE_QT names no folder")
endif()
set(CMAKE_PREFIX_PATH ${HALVANE_QT})
set(CMAKE_FIND_ROOT_PATH ${HALVANE_QT} /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
