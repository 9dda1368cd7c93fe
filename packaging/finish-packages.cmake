# Run by CPack when the packages are made: takes away the scripts that call ldconfig, which CPack writes although the
# package has the trigger that replaces them.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(tree ${CPACK_TEMPORARY_DIRECTORY}/repack)
    file(REMOVE_RECURSE ${tree})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${tree} COMMAND_ERROR_IS_FATAL ANY)
    if(EXISTS ${tree}/DEBIAN/postinst)
        file(REMOVE ${tree}/DEBIAN/postinst ${tree}/DEBIAN/postrm)
        execute_process(COMMAND dpkg-deb --root-owner-group --build ${tree} ${package}
            COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
    endif()
    file(REMOVE_RECURSE ${tree})
endforeach()
