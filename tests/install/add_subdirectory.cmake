# The library as a part of its host's own build. Only the host's file is compiled: a compiler launcher takes the
# library's objects from the tree that is tested, which was built from the same sources with the same compiler.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
compose(add_subdirectory guest.cmake)
file(CREATE_LINK ${source} ${work}/source/korva SYMBOLIC)
set(ENV{CMAKE_CXX_COMPILER_LAUNCHER} "${here}/take-object;${tree};korva")
configure(-D guest=${work}/source/korva -D KORVA_SANITIZE=${sanitize})
step(${CMAKE_COMMAND} --build ${work}/build --parallel 2)
step(${work}/build/app)
