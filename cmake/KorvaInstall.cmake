# The installed tree: library, public headers, CMake package.
include(CMakePackageConfigHelpers)

set(korva_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Korva)

install(TARGETS korva
    EXPORT KorvaTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/korva)
install(EXPORT KorvaTargets NAMESPACE Korva:: DESTINATION ${korva_package_dir})

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/KorvaConfig.cmake.in
    ${PROJECT_BINARY_DIR}/KorvaConfig.cmake INSTALL_DESTINATION ${korva_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KorvaConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KorvaConfig.cmake ${PROJECT_BINARY_DIR}/KorvaConfigVersion.cmake
    DESTINATION ${korva_package_dir})

if(KORVA_BUILD_HOST)
    install(TARGETS korva-pad RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
