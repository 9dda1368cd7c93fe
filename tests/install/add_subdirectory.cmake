# The library as a part of its host's own build. Only the host's file is compiled: a compiler launcher takes the
# library's objects from the tree that is tested, which was built from the same sources with the same compiler.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
configure(embedder -D korva_source=${source} -D KORVA_SANITIZE=${sanitize} -D built_tree=${tree})
step(${CMAKE_COMMAND} --build ${work}/build --parallel 2)
step(${work}/build/embedder)
