# SPDX-License-Identifier: MIT
# Makes the Debian packages of the release build, unpacks them into a clean folder, and takes them
# from there as a user would: starts bandmonitor, and builds an application against the libraries.
#   cmake -DPROJECT_DIR=… -DBUILD_DIR=… -DWORK_DIR=… -DVERSION=… -P check.cmake
function(run result)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
    set(${result} "${output}" PARENT_SCOPE)
endfunction()

function(expect text pattern)
    if(NOT text MATCHES "${pattern}")
        message(FATAL_ERROR "Expected ${pattern} in: ${text}")
    endif()
endfunction()

# Unpacks a package and compares what it depends on with the patterns.
function(unpack package)
    file(GLOB archive "${WORK_DIR}/${package}_${VERSION}_*.deb")
    run(depends dpkg-deb --field "${archive}" Depends)
    foreach(pattern IN LISTS ARGN)
        expect("${depends}" "${pattern}")
    endforeach()
    run(ignored dpkg-deb --extract "${archive}" "${root}")
    file(READ "${root}/usr/share/doc/${package}/copyright" licence)
    expect("${licence}" "MIT License")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
set(root "${WORK_DIR}/root")
file(MAKE_DIRECTORY "${root}")
run(ignored "${CMAKE_CPACK_COMMAND}" -G DEB --config "${BUILD_DIR}/CPackConfig.cmake" -B "${WORK_DIR}")

# What runs needs no headers, and finds its libraries and no others.
set(same_version "\\(= ${VERSION}\\)")
unpack(libguibase0 "libqt6widgets6 \\(>= 6" "libqt6network6" "libc6 ")
unpack(bandmonitor "libguibase0 ${same_version}" "libqt6core6 ")
if(EXISTS "${root}/usr/include")
    message(FATAL_ERROR "Headers are in a package that is there to run")
endif()
set(program "${root}/usr/bin/bandmonitor")
run(output "${program}" --version)
expect("${output}" "^bandmonitor ${VERSION}\n$")
run(output "${program}" --language de --help)
expect("${output}" "Die Version ausgeben und enden")
run(output ldd "${program}")
foreach(library IN ITEMS JTBase TrovAppStartUp ValueFramework XMsgDlg GuiBase RadioPanes)
    expect("${output}" "lib${library}.so.0 => ${root}/usr/")
endforeach()
run(ignored "${CMAKE_COMMAND}" -E env "XDG_RUNTIME_DIR=${WORK_DIR}"
    "${program}" --config "${WORK_DIR}/config" --shots "${WORK_DIR}/shots")
if(NOT EXISTS "${WORK_DIR}/shots/main.png")
    message(FATAL_ERROR "The packaged bandmonitor wrote no picture of its window")
endif()

# The plug-in for Qt Designer finds its libraries. It is not built without Designer's headers.
file(GLOB designer "${WORK_DIR}/libguibase-designer_*.deb")
if(designer)
    unpack(libguibase-designer "libguibase0 ${same_version}" "libqt6gui6 ")
    run(folder qmake6 -query QT_INSTALL_PLUGINS) # where Designer looks
    string(STRIP "${folder}" folder)
    run(output ldd "${root}${folder}/designer/libguibase_designer.so")
    expect("${output}" "libRadioPanes.so.0 => ${root}/usr/")
endif()

# What a desktop reads.
set(entry "${root}/usr/share/applications/bandmonitor.desktop")
set(page "${root}/usr/share/man/man1/bandmonitor.1")
if(NOT EXISTS "${root}/usr/share/icons/hicolor/scalable/apps/bandmonitor.svg")
    message(FATAL_ERROR "The desktop entry has no icon")
endif()
find_program(VALIDATE desktop-file-validate)
if(VALIDATE)
    run(output "${VALIDATE}" "${entry}")
    expect("${output}" "^$")
endif()
find_program(MAN man)
if(MAN)
    run(output "${CMAKE_COMMAND}" -E env LC_ALL=C.UTF-8
        "${MAN}" --warnings --local-file --troff-device=utf8 --ditroff "${page}")
    if(output MATCHES "warning")
        message(FATAL_ERROR "${output}")
    endif()
endif()

# An application builds against the development package.
unpack(libguibase-dev "libguibase0 ${same_version}" "qt6-base-dev \\(>= 6.4\\)")
set(quickstart "${root}/usr/share/doc/libguibase-dev/examples/quickstart")
foreach(source IN ITEMS "${PROJECT_DIR}/tests/consumer" "${quickstart}")
    cmake_path(GET source FILENAME application)
    run(ignored "${CMAKE_COMMAND}" -G Ninja -S "${source}" -B "${WORK_DIR}/${application}"
        "-DCMAKE_PREFIX_PATH=${root}/usr")
    run(ignored "${CMAKE_COMMAND}" --build "${WORK_DIR}/${application}")
endforeach()
if(NOT EXISTS "${root}/usr/share/doc/libguibase-dev/docs/guide/README.md")
    message(FATAL_ERROR "The development package has no guide")
endif()
run(output "${WORK_DIR}/consumer/consumer")
expect("${output}" "frequencies in")
