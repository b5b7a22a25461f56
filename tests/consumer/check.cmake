# SPDX-License-Identifier: MIT
# Installs the build, moves the installation, and builds and runs against it, each as a project of
# its own: the consumer, the examples, the applications that the README shows, and the guide.
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

# The block of this language in the page, counted from 0; empty when there are not so many.
function(markdown_block page language number result)
    file(READ "${page}" text)
    set(fence "```${language}\n")
    string(LENGTH "${fence}" fence_length)
    set(${result} "" PARENT_SCOPE)
    foreach(block RANGE ${number})
        string(FIND "${text}" "${fence}" begin)
        if(begin EQUAL -1)
            return()
        endif()
        math(EXPR begin "${begin} + ${fence_length}")
        string(SUBSTRING "${text}" ${begin} -1 text)
    endforeach()
    string(FIND "${text}" "```" end)
    string(SUBSTRING "${text}" 0 ${end} block)
    set(${result} "${block}" PARENT_SCOPE)
endfunction()

function(readme_block language number result)
    markdown_block("${PROJECT_DIR}/README.md" ${language} ${number} block)
    if(block STREQUAL "")
        message(FATAL_ERROR "The README shows no ${language} number ${number}")
    endif()
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

# One program out of all pages of the guide: its argument names the page whose main() it runs.
function(write_guide_project folder pages)
    set(rows "")
    set(declarations "")
    set(programs "")
    foreach(page IN LISTS pages)
        set(text "")
        foreach(number RANGE 20)
            markdown_block("${PROJECT_DIR}/docs/guide/${page}.md" cpp ${number} block)
            string(APPEND text "${block}")
        endforeach()
        string(REPLACE "main.moc" "${page}.moc" text "${text}")
        file(WRITE "${folder}/${page}.cpp" "#define main ${page}_main\n${text}#undef main\n")
        if(NOT text MATCHES "int main")
            continue()
        endif()
        list(APPEND programs ${page})
        string(APPEND declarations "int ${page}_main(int, char*[]);\n")
        string(APPEND rows "    if (page == \"${page}\")\n        return ${page}_main(argc, argv);\n")
    endforeach()
    file(WRITE "${folder}/main.cpp" "#include <string_view>\n\n${declarations}\n"
        "int main(int argc, char* argv[])\n{\n"
        "    const std::string_view page = argc > 1 ? argv[1] : \"\";\n${rows}    return 2;\n}\n")
    markdown_block("${PROJECT_DIR}/docs/guide/README.md" cmake 0 package)
    list(JOIN pages ".cpp " sources)
    string(REPLACE "main.cpp" "main.cpp ${sources}.cpp" package "${package}")
    file(WRITE "${folder}/CMakeLists.txt" "${package}"
        "target_compile_options(myapplication PRIVATE -Wall -Wextra -Werror)\n")
    set(guide_programs "${programs}" PARENT_SCOPE)
endfunction()

# Every page runs by itself until it is asked to end, all at the same time, without a warning. A
# page that shows what it writes writes that, and ends by itself. On a busy machine some may not have
# begun to listen to the request when it comes; then all get more time.
function(run_guide folder pages)
    foreach(patience 10 60)
        try_guide("${folder}" "${pages}" ${patience})
        if(NOT "${results}" MATCHES "143")
            break()
        endif()
    endforeach()
    list(REMOVE_DUPLICATES results)
    if(NOT results STREQUAL "0" OR NOT errors STREQUAL "")
        message(FATAL_ERROR "Pages of the guide ended with ${results}\n${errors}")
    endif()
endfunction()

# Leaves what they ended with in `results`, and their warnings in `errors`.
function(try_guide folder pages patience)
    set(ENV{XDG_RUNTIME_DIR} "${WORK_DIR}/runtime") # the toolkit warns without one
    file(MAKE_DIRECTORY "${WORK_DIR}/runtime")
    file(CHMOD "${WORK_DIR}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set(commands "")
    foreach(page IN LISTS pages)
        markdown_block("${PROJECT_DIR}/docs/guide/${page}.md" text 0 expected)
        set(program "${CMAKE_COMMAND}" -E env "QT_LOGGING_RULES=*.info=false"
            "XDG_CONFIG_HOME=${WORK_DIR}/config/${page}" timeout --preserve-status ${patience}
            "${folder}/myapplication" ${page})
        if(expected STREQUAL "")
            list(APPEND commands COMMAND ${program})
            continue()
        endif()
        execute_process(COMMAND ${program} RESULT_VARIABLE result OUTPUT_VARIABLE output)
        if(NOT result EQUAL 0 OR NOT output STREQUAL expected)
            message(FATAL_ERROR "${page} ended with ${result} and wrote:\n${output}")
        endif()
    endforeach()
    execute_process(${commands} WORKING_DIRECTORY "${folder}" RESULTS_VARIABLE results
        OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    # What the platform of the tests says about every window.
    string(REPLACE "This plugin does not support propagateSizeHints()\n" "" errors "${errors}")
    set(results "${results}" PARENT_SCOPE)
    set(errors "${errors}" PARENT_SCOPE)
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
else()
    file(GLOB pages RELATIVE "${PROJECT_DIR}/docs/guide" "${PROJECT_DIR}/docs/guide/*.md")
    list(TRANSFORM pages REPLACE "\\.md$" "")
    list(REMOVE_ITEM pages README)
    write_guide_project("${WORK_DIR}/guide" "${pages}")
    build_project("${WORK_DIR}/guide" guide_build)
    run_guide("${WORK_DIR}/guide_build" "${guide_programs}")
    build_project("${PROJECT_DIR}/examples/designer" designer)
    run_until_asked_to_end(designer designer)
endif()
