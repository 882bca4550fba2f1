# SPDX-License-Identifier: MIT
# What every target of ours shares: warnings as errors, sanitizers, one include root.

add_library(BriskoOptions INTERFACE)
target_compile_options(BriskoOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -fno-omit-frame-pointer)
# GCC 12 suspects the insides of std::variant and std::optional once it inlines them, which only a release does.
target_compile_options(BriskoOptions INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
target_compile_definitions(BriskoOptions INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(BriskoOptions INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(BRISKO_SANITIZE)
    target_compile_options(BriskoOptions INTERFACE -fsanitize=${BRISKO_SANITIZE} -fno-sanitize-recover=all)
    target_link_options(BriskoOptions INTERFACE -fsanitize=${BRISKO_SANITIZE})
endif()

# brisko_library(NAME SOURCES ... LINKS ...): one floor, or one part of one, as a static library.
function(brisko_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC BriskoOptions ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
endfunction()

# brisko_qml_module(NAME URI ... SOURCES ... LINKS ...): C++ types for QML, under our own warnings.
# brisko_qml_files(NAME URI ... FILES ... LINKS ...): QML files; what is generated from them has warnings of its own, so
# it is built without ours. Whoever shows them links NAMEplugin too and imports it: see App/QmlModules.h.
function(brisko_qml_module name)
    cmake_parse_arguments(ARG "" "URI" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    string(REPLACE "." "/" folder ${ARG_URI})
    qt_add_library(${name} STATIC)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    qt_add_qml_module(${name} URI ${ARG_URI} VERSION 1.0 RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${folder} SOURCES ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC BriskoOptions ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
    # The generated registration includes its headers by their bare names.
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()
# Only what people run has its QML compiled ahead: while developing that costs more than it gives.
function(brisko_qml_files name)
    cmake_parse_arguments(ARG "" "URI" "FILES;LINKS" ${ARGN})
    string(REPLACE "." "/" folder ${ARG_URI})
    qt_add_library(${name} STATIC)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    set(ahead)
    if(CMAKE_BUILD_TYPE STREQUAL "Debug")
        set(ahead NO_CACHEGEN)
    endif()
    qt_add_qml_module(${name} URI ${ARG_URI} VERSION 1.0 RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${folder} QML_FILES ${ARG_FILES} ${ahead})
    target_link_libraries(${name} PUBLIC Qt6::Quick ${ARG_LINKS})
    # No word of ours is in what is generated.
    target_compile_options(${name} PRIVATE -w)
endfunction()
