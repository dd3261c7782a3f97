# vex_add_idl(<target> <file.idl>...)
#
# Makes an object library of the stubs, skeletons, type codes and Any operators that omniidl
# generates from the IDL files. The code lives in the build tree only and is included as SYSTEM;
# it is compiled without this project's warnings, and its symbols stay visible because programs
# derive from the skeletons.

find_program(OMNIIDL_EXECUTABLE omniidl REQUIRED)

function(vex_add_idl target)
    set(out "${CMAKE_CURRENT_BINARY_DIR}/generated/idl")
    file(MAKE_DIRECTORY "${out}")
    set(sources)
    foreach(idl IN LISTS ARGN)
        get_filename_component(name "${idl}" NAME_WE)
        set(made "${out}/${name}.hh" "${out}/${name}SK.cc" "${out}/${name}DynSK.cc")
        add_custom_command(
            OUTPUT ${made}
            COMMAND "${OMNIIDL_EXECUTABLE}" -bcxx -Wba -C "${out}" "${CMAKE_CURRENT_SOURCE_DIR}/${idl}"
            DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${idl}"
            COMMENT "omniidl ${idl}"
            VERBATIM)
        list(APPEND sources ${made})
    endforeach()
    add_library(${target} OBJECT ${sources})
    set_target_properties(${target} PROPERTIES
        AUTOMOC OFF
        CXX_VISIBILITY_PRESET default
        VISIBILITY_INLINES_HIDDEN OFF)
    target_compile_options(${target} PRIVATE -w)
    target_include_directories(${target} SYSTEM PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}/generated>"
        "$<BUILD_INTERFACE:${out}>")
    target_link_libraries(${target} PUBLIC PkgConfig::omniORB Threads::Threads)
endfunction()
