# Run by CPack when the trees to be packed are laid out: adds what every Debian package has in its documentation and
# compresses what is compressed there.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(tree ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(documentation ${tree}/share/doc/${package})

    file(MAKE_DIRECTORY ${documentation})
    file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/copyright ${documentation}/copyright)
    file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/changelog ${documentation}/changelog.Debian)
    file(MAKE_DIRECTORY ${tree}/share/lintian/overrides)
    file(READ ${CMAKE_CURRENT_LIST_DIR}/lintian-overrides overrides)
    string(REPLACE "PACKAGE" "${package}" overrides "${overrides}")
    file(WRITE ${tree}/share/lintian/overrides/${package} "${overrides}")

    file(GLOB pages ${tree}/share/man/man*/*)
    execute_process(COMMAND gzip -9 --no-name --force ${documentation}/changelog.Debian ${pages}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
