# The examples as a stranger builds them: against the installed tree.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
file(WRITE ${work}/source/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)
project(examples LANGUAGES CXX)
foreach(example designer journal kiosk minimal preview services tools)
    add_subdirectory(${source}/examples/\${example} \${example})
endforeach()
")
# Only the library has sanitizers in it, so that this takes little time.
configure(-D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_FLAGS= -D CMAKE_EXE_LINKER_FLAGS=${flags})
step(${CMAKE_COMMAND} --build ${work}/build --parallel 2)
