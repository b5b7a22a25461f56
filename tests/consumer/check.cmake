# SPDX-License-Identifier: MIT
# Installs the build into a fresh prefix, then configures, builds and runs the consumer and the quick
# start against it.
#   cmake -DBUILD_DIR=… -DSOURCE_DIR=… -DEXAMPLES_DIR=… -DWORK_DIR=… -DCXX_FLAGS=… -P check.cmake
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
    message("${output}")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix")
run("${CMAKE_COMMAND}" -G Ninja -S "${SOURCE_DIR}" -B "${WORK_DIR}/build"
    "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix"
    "-DGUIBASE_INCLUDE_DIR=${WORK_DIR}/prefix/include/GuiBase"
    "-DGUIBASE_QUICKSTART_DIR=${EXAMPLES_DIR}/quickstart"
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/build")
run("${WORK_DIR}/build/consumer")
# It ends in good order when it is asked to, and leaves its configuration.
run("${CMAKE_COMMAND}" -E env "XDG_CONFIG_HOME=${WORK_DIR}/config" QT_QPA_PLATFORM=offscreen
    timeout --preserve-status 2 "${WORK_DIR}/build/quickstart/quickstart")
file(GLOB configuration "${WORK_DIR}/config/*")
if(NOT configuration)
    message(FATAL_ERROR "The quick start has stored nothing.")
endif()
