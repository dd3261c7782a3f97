# What every target of the project is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(vex_compile_options INTERFACE)
target_compile_options(vex_compile_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${VEX_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(vex_compile_options INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(VEX_SANITIZE)
    add_compile_options(-fsanitize=${VEX_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VEX_SANITIZE})
    if(VEX_SANITIZE MATCHES "undefined")
        # omniORB's headers downcast through virtual bases of classes whose type information
        # lives in the library; everything else stays checked.
        add_compile_options(-fno-sanitize=vptr -fno-sanitize-recover=undefined)
    endif()
endif()

# Links the usual things into a program or test of this project.
function(vex_target_defaults target)
    target_link_libraries(${target} PRIVATE vex_compile_options)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
endfunction()
