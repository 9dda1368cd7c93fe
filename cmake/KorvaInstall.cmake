# The installed tree, in parts that may be installed alone: runtime (the shared library), development (headers, CMake and
# pkg-config), pad (the programs), translations (the languages of both), designer (the plugin for Qt Designer) and python
# (the module for Python). packaging/debian/*.install says which package gets which file.
include(CMakePackageConfigHelpers)

set(korva_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Korva)
set(korva_header_dir ${CMAKE_INSTALL_INCLUDEDIR}/korva)

install(TARGETS korva
    EXPORT KorvaTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    FILE_SET HEADERS DESTINATION ${korva_header_dir} COMPONENT development)
install(EXPORT KorvaTargets NAMESPACE Korva:: DESTINATION ${korva_package_dir} COMPONENT development)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/KorvaConfig.cmake.in
    ${PROJECT_BINARY_DIR}/KorvaConfig.cmake INSTALL_DESTINATION ${korva_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KorvaConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KorvaConfig.cmake ${PROJECT_BINARY_DIR}/KorvaConfigVersion.cmake
    DESTINATION ${korva_package_dir} COMPONENT development)

# Relative to the file, so that the tree can be installed anywhere.
set(korva_pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH korva_pc_prefix /${korva_pc_dir} /)
if(NOT BUILD_SHARED_LIBS)
    set(korva_pc_requires ", libpng, libjpeg, zlib")
    set(korva_pc_libs " -lgif -ldl")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/korva.pc.in ${PROJECT_BINARY_DIR}/korva.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/korva.pc DESTINATION ${korva_pc_dir} COMPONENT development)

install(FILES ${korva_messages}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/korva/translations COMPONENT translations)

if(KORVA_BUILD_PROGRAMS)
    install(TARGETS korva-pad korva-preview COMPONENT pad)
    install(FILES docs/man/korva-pad.1 docs/man/korva-preview.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT pad)
    install(FILES ${PROJECT_BINARY_DIR}/packaging/korva-pad.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT pad)
    install(FILES ${PROJECT_BINARY_DIR}/packaging/org.korva.pad.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT pad)
    install(FILES host/demo.rec DESTINATION ${CMAKE_INSTALL_DATADIR}/korva COMPONENT pad)

    set(korva_icon_dir ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    foreach(size 16 22 24 32 48 64 128 256)
        install(FILES images/korva-pad-${size}.png
            DESTINATION ${korva_icon_dir}/${size}x${size}/apps RENAME korva-pad.png COMPONENT pad)
    endforeach()
    install(FILES images/source/korva-pad.svg DESTINATION ${korva_icon_dir}/scalable/apps COMPONENT pad)
endif()

if(KORVA_BUILD_PLUGIN)
    # Where Qt looks: below its own prefix, and so below any other for QT_PLUGIN_PATH.
    set(KORVA_PLUGIN_DIR ${QT6_INSTALL_PLUGINS} CACHE STRING "The folder of Qt's plugins, as seen from the prefix")
    install(TARGETS korva-designer LIBRARY DESTINATION ${KORVA_PLUGIN_DIR}/designer COMPONENT designer)
endif()

if(KORVA_BUILD_PYTHON)
    set(KORVA_PYTHON_DIR lib/python3/dist-packages CACHE STRING "The folder of Python's modules, as seen from the prefix")
    install(TARGETS korva_python LIBRARY DESTINATION ${KORVA_PYTHON_DIR} COMPONENT python)
    install(FILES ${PROJECT_BINARY_DIR}/python/sip/korva/korva.pyi DESTINATION ${KORVA_PYTHON_DIR} COMPONENT python)
endif()
