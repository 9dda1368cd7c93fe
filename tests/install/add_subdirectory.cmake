# The library as a part of its host's own build: all of it is compiled there, by the guest's compiler and with the
# guest's flags, and what comes out runs. Plainly and without a cache, so that it takes no longer than it must.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
compose(add_subdirectory guest.cmake)
file(CREATE_LINK ${source} ${work}/source/korva SYMBOLIC)
unset(ENV{CMAKE_CXX_COMPILER_LAUNCHER})
set(flags -O0)
configure(-D guest=${work}/source/korva)
step(${CMAKE_COMMAND} --build ${work}/build --parallel 2)
step(${work}/build/app)
