# Flags that every target of ours is built with, and the way floors are made.

find_program(HALVANE_CCACHE ccache)
if(HALVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${HALVANE_CCACHE})
endif()

set(HALVANE_SANITIZE "" CACHE STRING "Sanitizers of the build: empty, address,undefined or thread")

add_library(halvane_flags INTERFACE)
target_include_directories(halvane_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(halvane_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
target_compile_definitions(halvane_flags INTERFACE
    QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DEPRECATED_WARNINGS)
if(HALVANE_SANITIZE)
    target_compile_options(halvane_flags INTERFACE -fsanitize=${HALVANE_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(halvane_flags INTERFACE -fsanitize=${HALVANE_SANITIZE})
endif()

