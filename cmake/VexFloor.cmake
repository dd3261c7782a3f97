# vex_add_floor(<folder> SOURCES ... HEADERS ... [PRIVATE_HEADERS ...] [DEPENDS ...])
#
# One folder of the library as an object library vex_<folder>. Its include root holds nothing but
# the folder itself, so a file reaches only the folders that its target links: an include of a
# higher floor does not compile. HEADERS are installed, PRIVATE_HEADERS are not.

function(vex_add_floor folder)
    cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;PRIVATE_HEADERS;DEPENDS" ${ARGN})
    set(target vex_${folder})
    set(root "${CMAKE_BINARY_DIR}/floors/${folder}")
    file(MAKE_DIRECTORY "${root}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${folder}" "${root}/${folder}" SYMBOLIC)

    set(files ${arg_SOURCES} ${arg_HEADERS} ${arg_PRIVATE_HEADERS})
    list(TRANSFORM files PREPEND "${folder}/")
    add_library(${target} OBJECT ${files})
    vex_target_defaults(${target})
    target_compile_definitions(${target} PRIVATE VexClient_EXPORTS)
    target_include_directories(${target}
        PUBLIC "$<BUILD_INTERFACE:${root}>" "$<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/include>")
    target_link_libraries(${target} PUBLIC Qt6::Core ${arg_DEPENDS})
    list(TRANSFORM arg_HEADERS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/")
    install(FILES ${arg_HEADERS}
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/VexClient/${folder}" COMPONENT Development)
endfunction()
