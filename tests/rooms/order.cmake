# SPDX-License-Identifier: MIT
# Holds that the folders of an application lie one above the other: a file includes headers of its
# own folder and of the folders before it, and of nothing above.
#
#   cmake -DAPPLICATION_DIR=... "-DFOLDERS=ground;...;top" -P order.cmake
# The files of APPLICATION_DIR itself may include all of them.
cmake_minimum_required(VERSION 3.25)
set(include_pattern "^[ \t]*#[ \t]*include[ \t]*\"([^\"]+)\"")
set(faults 0)
set(count 0)
foreach(folder IN LISTS FOLDERS)
    list(APPEND below "${folder}")
    file(GLOB files "${APPLICATION_DIR}/${folder}/*.h" "${APPLICATION_DIR}/${folder}/*.cpp")
    foreach(file IN LISTS files)
        math(EXPR count "${count} + 1")
        file(STRINGS "${file}" lines REGEX "${include_pattern}")
        foreach(line IN LISTS lines)
            string(REGEX MATCH "${include_pattern}" ignored "${line}")
            set(header "${CMAKE_MATCH_1}")
            cmake_path(GET header PARENT_PATH needed)
            # A path that goes up leads into any folder.
            if(NOT header MATCHES "\\.\\./"
               AND (EXISTS "${APPLICATION_DIR}/${folder}/${header}" OR needed IN_LIST below))
                continue()
            endif()
            message("${file}: includes ${header}, which lies above ${folder}/")
            math(EXPR faults "${faults} + 1")
        endforeach()
    endforeach()
endforeach()
if(count EQUAL 0 OR faults GREATER 0)
    message(FATAL_ERROR "${faults} faults in ${count} files of ${APPLICATION_DIR}")
endif()
message("${count} files of ${APPLICATION_DIR}: every folder uses only those below it")
