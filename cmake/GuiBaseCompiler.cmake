# SPDX-License-Identifier: MIT
# Language level, warnings and sanitizers, gathered in one target that every target of the project
# links privately: what is switched on here never reaches the users of the installed libraries.

if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(GUIBASE_CCACHE ccache)
    if(GUIBASE_CCACHE)
        # It keeps what is compiled with precompiled headers only when it is told so.
        set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
            CCACHE_SLOPPINESS=pch_defines,time_macros "${GUIBASE_CCACHE}")
    endif()
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

if(GUIBASE_SANITIZE)
    set(guibase_sanitizers address,undefined)
    add_compile_options(-fsanitize=${guibase_sanitizers} -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${guibase_sanitizers})
endif()

if(GUIBASE_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

add_library(guibase_build_settings INTERFACE)
target_compile_definitions(guibase_build_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
target_compile_options(guibase_build_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${GUIBASE_WARNINGS_AS_ERRORS}>:-Werror>)
