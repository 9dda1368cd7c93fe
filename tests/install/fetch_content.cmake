# The same by FetchContent: as far as the build files; the compiler would see what add_subdirectory shows it.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
configure(embedder -D korva_source=${source} -D fetch=ON)
