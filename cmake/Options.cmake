# SPDX-License-Identifier: GPL-3.0-or-later
# Flags that every target of ours is built with, and the way floors are made.

find_program(HALVANE_CCACHE ccache)
if(HALVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${HALVANE_CCACHE})
endif()

set(HALVANE_SANITIZE "" CACHE STRING "Sanitizers of the build: empty, address,undefined or thread")

add_library(halvane_flags INTERFACE)
target_include_directories(halvane_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(halvane_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
target_compile_definitions(halvane_flags INTERFACE
    QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DEPRECATED_WARNINGS)
# A release is built so that its faults are hard to exploit; packaging/check-hardening checks the built files.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    target_compile_options(halvane_flags INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -fstack-protector-strong)
    if(WIN32)
        # For Windows the stack protector is a library, which has to be linked.
        target_link_options(halvane_flags INTERFACE
            -fstack-protector-strong LINKER:--dynamicbase,--high-entropy-va,--nxcompat)
    else()
        include(CheckPIESupported)
        check_pie_supported(LANGUAGES CXX)
        target_compile_options(halvane_flags INTERFACE -fstack-clash-protection)
        target_link_options(halvane_flags INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)
        if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
            target_compile_options(halvane_flags INTERFACE -fcf-protection=full)
        endif()
    endif()
endif()
if(HALVANE_SANITIZE)
    target_compile_options(halvane_flags INTERFACE -fsanitize=${HALVANE_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(halvane_flags INTERFACE -fsanitize=${HALVANE_SANITIZE})
endif()

# halvane_add_floor(<library> <file>…): adds sources of this folder to a library, which the first call makes. A file
# without an ending is a .cpp; its header goes along.
function(halvane_add_floor library)
    if(NOT TARGET ${library})
        add_library(${library} STATIC)
    endif()
    foreach(file IN LISTS ARGN)
        if(NOT file MATCHES "\\.h$")
            string(APPEND file .cpp)
        endif()
        target_sources(${library} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    endforeach()
endfunction()

# halvane_add_resource(<program>): icon, version and manifest of a program for Windows. The language RC has to be enabled.
function(halvane_add_resource program)
    get_target_property(HALVANE_PROGRAM ${program} OUTPUT_NAME)
    set(HALVANE_FILE_VERSION ${PROJECT_VERSION})
    string(REPLACE "." "," HALVANE_FILE_VERSION_WORDS ${HALVANE_FILE_VERSION})
    set(HALVANE_ICON ${CMAKE_BINARY_DIR}/images/VelmoraHalvane.ico)
    set(HALVANE_MANIFEST ${CMAKE_CURRENT_BINARY_DIR}/${program}.manifest)
    configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/VelmoraHalvane.manifest ${HALVANE_MANIFEST} @ONLY)
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
    configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/VelmoraHalvane.rc.in ${resource} @ONLY)
    target_sources(${program} PRIVATE ${resource})
    set_property(SOURCE ${resource} PROPERTY OBJECT_DEPENDS "${HALVANE_ICON};${HALVANE_MANIFEST}")
    # The icon is drawn with the images.
    add_dependencies(${program} halvane_images)
endfunction()

# halvane_install_link(<name> <file>): what is typed to start a file of the program's folder. The file finds its folder
# through the link.
function(halvane_install_link name file)
    set(link ${CMAKE_CURRENT_BINARY_DIR}/link/${name})
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/link)
    file(CREATE_LINK ../${HALVANE_HOME}/${file} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()
