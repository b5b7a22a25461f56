# SPDX-License-Identifier: MIT
# No symbol of the recorded lists may be gone from the libraries of the release build.
#   cmake -DPROJECT_DIR=… -DBUILD_DIR=… -DWORK_DIR=… -P check.cmake
function(compare lists result output)
    execute_process(
        COMMAND "${PROJECT_DIR}/scripts/symbols" --compare "${BUILD_DIR}" "${lists}"
        RESULT_VARIABLE code OUTPUT_VARIABLE text ERROR_VARIABLE text)
    set(${result} "${code}" PARENT_SCOPE)
    set(${output} "${text}" PARENT_SCOPE)
endfunction()

compare("${PROJECT_DIR}/symbols" result output)
message("${output}")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "Applications that were built before no longer run (${result}).")
endif()

# A symbol that a list alone has is noticed.
file(REMOVE_RECURSE "${WORK_DIR}")
file(COPY "${PROJECT_DIR}/symbols/" DESTINATION "${WORK_DIR}")
file(APPEND "${WORK_DIR}/XMsgDlg.txt" "~nothing\n")
compare("${WORK_DIR}" result output)
if(NOT result EQUAL 1 OR NOT output MATCHES "gone from XMsgDlg: ~nothing")
    message(FATAL_ERROR "A missing symbol was not noticed: ${result}\n${output}")
endif()
