# SPDX-License-Identifier: MIT
# Lets the gallery write its pictures without a display: each page is there, light and dark, and no
# two pictures are the same.
#   cmake -DPROGRAM=… -DWORK_DIR=… -P check.cmake
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}/runtime")
file(CHMOD "${WORK_DIR}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY
        "XDG_RUNTIME_DIR=${WORK_DIR}/runtime" LC_ALL=C.UTF-8 "${PROGRAM}" --shots "${WORK_DIR}"
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0 OR NOT output STREQUAL "")
    message(FATAL_ERROR "The gallery ended with ${result}\n${output}")
endif()
file(GLOB pictures "${WORK_DIR}/*.png")
set(hashes "")
foreach(picture IN LISTS pictures)
    file(SHA256 "${picture}" hash)
    list(APPEND hashes "${hash}")
endforeach()
list(LENGTH pictures count)
list(REMOVE_DUPLICATES hashes)
list(LENGTH hashes different)
execute_process(COMMAND "${PROGRAM}" --pages OUTPUT_VARIABLE pages COMMAND_ERROR_IS_FATAL ANY)
math(EXPR expected "2 * ${pages}")
if(NOT count EQUAL expected OR NOT different EQUAL count)
    message(FATAL_ERROR "${count} pictures, ${different} of them different; expected ${expected}")
endif()
