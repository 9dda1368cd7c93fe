# Without CMake: what a Makefile would do.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
file(GLOB_RECURSE pc ${prefix}/lib/korva.pc ${prefix}/lib/*/korva.pc)
get_filename_component(pc_folder "${pc}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_folder})

step(pkg-config --exists "korva >= 1")
step(pkg-config --cflags --libs korva)
separate_arguments(found UNIX_COMMAND "${step_output}")
step(${compiler} -std=c++20 -fPIC ${flags} ${here}/consumer/main.cpp -o ${work}/consumer ${found})

step(pkg-config --variable=libdir korva)
string(STRIP "${step_output}" libraries)
step(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries} ${work}/consumer)
