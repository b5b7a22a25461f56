# SPDX-License-Identifier: MIT
# Installs the build, moves the installation, and builds and runs against it, each as a project of
# its own: the consumer, the quick start, and the applications that the README shows.
#   cmake -DPROJECT_DIR=… -DBUILD_DIR=… -DWORK_DIR=… -DCXX_FLAGS=… -DLAUNCHER=…
#         [-DRELEASE=ON] -P check.cmake
# With RELEASE all but the tests is first built for release in BUILD_DIR; else that is a ready build,
# whose public headers are also compiled one by one.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
    message("${output}")
endfunction()

function(build_release)
    run("${CMAKE_COMMAND}" -G Ninja -S "${PROJECT_DIR}" -B "${BUILD_DIR}"
        -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF -DGUIBASE_BUILD_EXAMPLES=ON
        "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}")
    run("${CMAKE_COMMAND}" --build "${BUILD_DIR}")
endfunction()

# Libraries must find each other where they are now, not where they were built or installed.
function(install_and_move prefix)
    run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}_before")
    file(RENAME "${prefix}_before" "${prefix}")
endfunction()

# The block of this language in the README, counted from 0.
function(readme_block language number result)
    file(READ "${PROJECT_DIR}/README.md" readme)
    set(fence "```${language}\n")
    string(LENGTH "${fence}" fence_length)
    foreach(block RANGE ${number})
        string(FIND "${readme}" "${fence}" begin)
        if(begin EQUAL -1)
            message(FATAL_ERROR "The README shows no ${language} number ${number}")
        endif()
        math(EXPR begin "${begin} + ${fence_length}")
        string(SUBSTRING "${readme}" ${begin} -1 readme)
    endforeach()
    string(FIND "${readme}" "```" end)
    string(SUBSTRING "${readme}" 0 ${end} block)
    set(${result} "${block}" PARENT_SCOPE)
endfunction()

# The application that the README shows with this number.
function(write_readme_project folder number)
    set(package "")
    foreach(page RANGE ${number})
        readme_block(cmake ${page} lines)
        string(APPEND package "${lines}")
    endforeach()
    readme_block(cpp ${number} program)
    file(WRITE "${folder}/CMakeLists.txt"
        "cmake_minimum_required(VERSION 3.25)\nproject(myapplication LANGUAGES CXX)\n"
        "add_executable(myapplication main.cpp)\n${package}")
    file(WRITE "${folder}/main.cpp" "${program}")
endfunction()

function(build_project source_dir name)
    run("${CMAKE_COMMAND}" -G Ninja -S "${source_dir}" -B "${WORK_DIR}/${name}"
        "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix"
        "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" ${ARGN})
    run("${CMAKE_COMMAND}" --build "${WORK_DIR}/${name}")
endfunction()

# Without CMake: the compiler and the linker are told what the installed pkg-config files say.
function(build_with_pkgconfig name)
    file(GLOB_RECURSE file "${WORK_DIR}/prefix/GuiBase.pc")
    cmake_path(GET file PARENT_PATH folder)
    set(ENV{PKG_CONFIG_PATH} "${folder}")
    foreach(library IN ITEMS JTBase TrovAppStartUp ValueFramework XMsgDlg GuiBase RadioPanes)
        run(pkg-config --print-errors --exists "${library} >= 0.2")
    endforeach()
    file(MAKE_DIRECTORY "${WORK_DIR}/${name}")
    run(sh -c "c++ -std=c++20 -fPIC -o '${WORK_DIR}/${name}/${name}' main.cpp \
        $(pkg-config --cflags --libs GuiBase) -Wl,-rpath,$(pkg-config --variable=libdir GuiBase)"
        WORKING_DIRECTORY "${PROJECT_DIR}/tests/consumer")
    run("${WORK_DIR}/${name}/${name}")
endfunction()

# It ends in good order when it is asked to, and leaves its configuration. On a busy machine the
# request can come before the program is ready for it: then it gets more time.
function(run_until_asked_to_end folder name)
    set(config "${WORK_DIR}/config/${folder}")
    foreach(seconds IN ITEMS 1 4 16 64)
        execute_process(COMMAND "${CMAKE_COMMAND}" -E env "XDG_CONFIG_HOME=${config}"
            timeout --preserve-status ${seconds} "${WORK_DIR}/${folder}/${name}"
            RESULT_VARIABLE result)
        if(NOT result EQUAL 143) # ended by the signal itself
            break()
        endif()
    endforeach()
    file(GLOB_RECURSE stored "${config}/*.json")
    if(NOT result EQUAL 0 OR NOT stored)
        message(FATAL_ERROR "${folder} ended with ${result} and stored: ${stored}")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
set(header_check "-DGUIBASE_INCLUDE_DIR=${WORK_DIR}/prefix/include/GuiBase")
if(RELEASE)
    build_release()
    set(header_check "")
endif()
install_and_move("${WORK_DIR}/prefix")
build_project("${PROJECT_DIR}/tests/consumer" consumer ${header_check})
build_project("${PROJECT_DIR}/examples/quickstart" quickstart)
run("${WORK_DIR}/consumer/consumer")
run_until_asked_to_end(quickstart quickstart)
foreach(number IN ITEMS 0 1)
    write_readme_project("${WORK_DIR}/readme${number}" ${number})
    build_project("${WORK_DIR}/readme${number}" myapplication${number})
    run_until_asked_to_end(myapplication${number} myapplication)
endforeach()
if(RELEASE)
    build_with_pkgconfig(pkgconfig)
endif()
