# The README shows the example as it is compiled.
file(READ "${SOURCE_DIR}/README.md" readme)
file(READ "${SOURCE_DIR}/apps/example/main.cpp" example)
string(FIND "${readme}" "${example}" place)
if(place EQUAL -1)
    message(FATAL_ERROR "README.md does not show apps/example/main.cpp as it is")
endif()
