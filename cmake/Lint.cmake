# SPDX-License-Identifier: MIT
# The target lint. It comes after a whole build: clang-tidy needs the files that are generated while building, and
# tools/lint asks the build which headers each source read.
find_package(Python3 COMPONENTS Interpreter)
if(NOT Python3_FOUND)
    return()
endif()

function(brisko_targets_below folder result)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    get_property(subfolders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS subfolders)
        brisko_targets_below(${subfolder} more)
        list(APPEND targets ${more})
    endforeach()
    set(${result} ${targets} PARENT_SCOPE)
endfunction()

brisko_targets_below(${CMAKE_SOURCE_DIR} brisko_targets)
add_custom_target(lint
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/lint --build ${CMAKE_BINARY_DIR}
    USES_TERMINAL VERBATIM)
foreach(target IN LISTS brisko_targets)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "LIBRARY|EXECUTABLE" AND NOT type STREQUAL "INTERFACE_LIBRARY")
        add_dependencies(lint ${target})
    endif()
endforeach()
