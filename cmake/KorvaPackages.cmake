# Debian packages, one for each part of the installed tree: packaging/build-deb makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME korva)
set(CPACK_PACKAGE_CONTACT "The Korva developers <korva@packages.example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/finish-tree.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/finish-packages.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development pad translations)
if(KORVA_BUILD_PLUGIN)
    list(APPEND CPACK_COMPONENTS_ALL designer)
endif()
if(KORVA_BUILD_PYTHON)
    list(APPEND CPACK_COMPONENTS_ALL python)
endif()
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# korva_package(component name section [DEPENDS package...] [RECOMMENDS package...] [DESCRIPTION line...])
function(korva_package component name section)
    cmake_parse_arguments(PARSE_ARGV 3 arg "" "" "COMPONENTS;DEPENDS;RECOMMENDS;DESCRIPTION")
    list(JOIN arg_DEPENDS ", " depends)
    list(JOIN arg_RECOMMENDS ", " recommends)
    list(JOIN arg_DESCRIPTION "\n" description)
    string(TOUPPER ${component} upper)
    foreach(variable IN ITEMS
            "DEBIAN_${upper}_PACKAGE_NAME;${name}"
            "DEBIAN_${upper}_PACKAGE_SECTION;${section}"
            "DEBIAN_${upper}_PACKAGE_DEPENDS;${depends}"
            "DEBIAN_${upper}_PACKAGE_RECOMMENDS;${recommends}"
            "COMPONENT_${upper}_DESCRIPTION;${description}")
        list(POP_FRONT variable suffix)
        set(CPACK_${suffix} "${variable}" PARENT_SCOPE)
    endforeach()
    set(CPACK_COMPONENT_${upper}_DEPENDS ${arg_COMPONENTS} PARENT_SCOPE)
endfunction()

korva_package(runtime libkorva${PROJECT_VERSION_MAJOR} libs
    DEPENDS qt6-image-formats-plugins # reads WBMP
    RECOMMENDS libkorva-l10n
    DESCRIPTION
        "bitmap drawing pad widget for small touch screens"
        "A drawing editor that a Qt program embeds as one widget: pencil, line,"
        "rectangle, ellipse, eraser, text, and a selection that is moved, stretched"
        "and turned.\n\nThis package holds the shared library.")
korva_package(development libkorva-dev libdevel
    COMPONENTS runtime
    DEPENDS qt6-base-dev
    DESCRIPTION
        "bitmap drawing pad widget for small touch screens (development files)"
        "A drawing editor that a Qt program embeds as one widget: pencil, line,"
        "rectangle, ellipse, eraser, text, and a selection that is moved, stretched"
        "and turned.\n\nThis package holds the headers and the files for CMake and pkg-config.")
korva_package(pad korva-pad graphics
    COMPONENTS runtime
    # The first shows it on Wayland, X11 needs nothing more; the second has the toolkit's few own texts.
    RECOMMENDS qt6-wayland qt6-translations-l10n
    DESCRIPTION
        "drawing pad for small pictures"
        "Draws and edits small pictures on a touch screen of 240 x 320 pixels or more,"
        "as well with a mouse: pencil, shapes, text, and a selection that is moved,"
        "stretched and turned. Reads PNG, GIF, JPEG, BMP and WBMP; writes PNG, JPEG"
        "and BMP.\n\nIt can record a drawing session as text and play it again.")
korva_package(translations libkorva-l10n localization
    DESCRIPTION
        "bitmap drawing pad widget for small touch screens (translations)"
        "A drawing editor that a Qt program embeds as one widget: pencil, line,"
        "rectangle, ellipse, eraser, text, and a selection that is moved, stretched"
        "and turned.\n\nThis package holds the languages of the library and of korva-pad.")
korva_package(designer libkorva-designer libs
    COMPONENTS runtime
    RECOMMENDS designer-qt6
    DESCRIPTION
        "bitmap drawing pad widget for small touch screens (Qt Designer plugin)"
        "A drawing editor that a Qt program embeds as one widget: pencil, line,"
        "rectangle, ellipse, eraser, text, and a selection that is moved, stretched"
        "and turned.\n\nThis package holds the plugin with which Qt Designer, and programs that"
        "load forms, show the editor and the preview.")
korva_package(python python3-korva python
    COMPONENTS runtime
    DEPENDS python3 "python3-pyqt6 (>= 6.4)"
    DESCRIPTION
        "bitmap drawing pad widget for small touch screens (Python 3 binding)"
        "A drawing editor that a PyQt6 program embeds as one widget: pencil, line,"
        "rectangle, ellipse, eraser, text, and a selection that is moved, stretched"
        "and turned.\n\nThis package holds the module korva for Python 3.")
set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_MULTIARCH foreign)
set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)

include(CPack)
