# SPDX-License-Identifier: MIT
# A room is a folder of the library with a files.cmake that calls guibase_room().

# guibase_room(<folder> [OBJECT] [PUBLIC <files>] [INTERNAL <files>])
#
# The files of a room, named as pairs: x.cpp x.h. Headers under PUBLIC are installed, but those that
# end in _p.h: they belong to their room. Headers under INTERNAL are not: they serve other rooms too.
#
# With OBJECT the room knows no widgets and is compiled once, as the target guibase_<folder>, for
# the library and for the tests and benchmarks that link it to reach what is not exported.
#
# Adds to the lists guibase_headers, guibase_sources and guibase_object_rooms of the caller.
function(guibase_room folder)
    cmake_parse_arguments(PARSE_ARGV 1 arg "OBJECT" "" "PUBLIC;INTERNAL")
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "guibase_room(${folder}): unknown words ${arg_UNPARSED_ARGUMENTS}")
    endif()
    set(headers ${arg_PUBLIC})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    list(FILTER headers EXCLUDE REGEX "_p\\.h$")
    set(sources ${arg_PUBLIC} ${arg_INTERNAL})
    list(REMOVE_ITEM sources ${headers})
    foreach(list IN ITEMS headers sources)
        list(TRANSFORM ${list} PREPEND "${folder}/")
    endforeach()

    list(APPEND guibase_headers ${headers})
    set(guibase_headers "${guibase_headers}" PARENT_SCOPE)
    if(arg_OBJECT)
        string(MAKE_C_IDENTIFIER "guibase_${folder}" target)
        add_library(${target} OBJECT ${sources})
        list(APPEND guibase_object_rooms ${target})
        set(guibase_object_rooms "${guibase_object_rooms}" PARENT_SCOPE)
    else()
        list(APPEND guibase_sources ${sources})
        set(guibase_sources "${guibase_sources}" PARENT_SCOPE)
    endif()
endfunction()

# Gives an OBJECT room the include paths, the visibility and the export macros of its library, which
# takes its objects in.
function(guibase_join_room target library)
    target_link_libraries(${target} PUBLIC ${ARGN} PRIVATE guibase_build_settings)
    target_include_directories(${target} PUBLIC
        $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
    target_compile_definitions(${target} PRIVATE ${library}_EXPORTS)
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_sources(${library} PRIVATE $<TARGET_OBJECTS:${target}>)
endfunction()
