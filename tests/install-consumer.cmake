# Installs the build into a prefix of its own, and builds and runs a program against what is there.
# Wants: BUILD_DIR, SOURCE_DIR (the program), WORK_DIR (is emptied), LIB_DIR (below the prefix).

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGV}: ${result}\n${output}")
    endif()
endfunction()

set(prefix "${WORK_DIR}/prefix")
set(build "${WORK_DIR}/build")
file(REMOVE_RECURSE "${WORK_DIR}")
# An installation works wherever it is put, and knows nothing of the tree it was built in.
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/staged")
file(RENAME "${WORK_DIR}/staged" "${prefix}")
file(GLOB_RECURSE texts "${prefix}/*.cmake" "${prefix}/*.pc" "${prefix}/*.h" "${prefix}/*.hh")
foreach(text IN LISTS texts)
    file(READ "${text}" contents)
    string(FIND "${contents}" "${BUILD_DIR}" place)
    if(NOT place EQUAL -1)
        message(FATAL_ERROR "${text} names the build tree")
    endif()
endforeach()

set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIB_DIR}/pkgconfig")
run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${build}" -G Ninja "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}")
run("${CMAKE_COMMAND}" --build "${build}")

set(ENV{LD_LIBRARY_PATH} "${prefix}/${LIB_DIR}")
run("${build}/consumer-cmake")
run("${build}/consumer-pkgconfig")
unset(ENV{LD_LIBRARY_PATH})
run("${prefix}/bin/fcpctl" --version)
run("${prefix}/bin/fcp-sim" --version)
