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
