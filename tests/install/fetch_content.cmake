# The same by FetchContent: as far as the build files; the compiler would see what add_subdirectory shows it.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
compose(fetch_content guest.cmake)
configure(-D guest=${source} -D FETCHCONTENT_SOURCE_DIR_KORVA=${source})
