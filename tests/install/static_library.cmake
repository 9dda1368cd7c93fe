# The same library as a static one, from what the test add_subdirectory has compiled: in the host's own build, then
# installed, found by CMake and by pkg-config. Its icons and languages come with it.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
unset(ENV{CMAKE_CXX_COMPILER_LAUNCHER}) # as there: another command would compile all of it anew
set(guest_build ${work}/../add_subdirectory/build)
step(${CMAKE_COMMAND} -D BUILD_SHARED_LIBS=OFF -D KORVA_INSTALL=ON -D CMAKE_INSTALL_PREFIX=${work}/prefix ${guest_build})
step(${CMAKE_COMMAND} --build ${guest_build} --parallel 2)
step(${guest_build}/app)
step(${CMAKE_COMMAND} --install ${guest_build})
file(GLOB_RECURSE libraries ${work}/prefix/*libkorva*)
if(NOT libraries MATCHES "/libkorva\\.a$")
    message(FATAL_ERROR "a static library and no other is wanted, not: ${libraries}")
endif()

file(READ ${blocks}/find_package text)
file(WRITE ${work}/source/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)
project(stranger LANGUAGES CXX)
${text}")
file(COPY ${here}/main.cpp DESTINATION ${work}/source)
set(flags -O0)
configure(-D CMAKE_PREFIX_PATH=${work}/prefix)
step(${CMAKE_COMMAND} --build ${work}/build)
step(${work}/build/app)

get_filename_component(folder "${libraries}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${folder}/pkgconfig)
step(sh -euc "'${compiler}' -std=c++20 -fPIC ${here}/main.cpp $(pkg-config --cflags --libs korva) -o app"
    WORKING_DIRECTORY ${work})
step(${work}/app)
step(ldd ${work}/app)
if(step_output MATCHES "libkorva" OR NOT step_output MATCHES "libgif")
    message(FATAL_ERROR "not linked as it should be: ${step_output}")
endif()
