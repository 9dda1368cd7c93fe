# The installed tree holds what it should, and of the headers only the public ones.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

file(REMOVE_RECURSE ${prefix})
step(${CMAKE_COMMAND} --install ${tree} --prefix ${prefix})

set(wanted "")
foreach(header IN LISTS headers)
    get_filename_component(name ${header} NAME)
    list(APPEND wanted ${name})
endforeach()
file(GLOB found RELATIVE ${prefix}/include/korva ${prefix}/include/korva/*)
list(SORT wanted)
list(SORT found)
if(NOT "${wanted}" STREQUAL "${found}")
    message(FATAL_ERROR "public headers are\n${wanted}\ninstalled are\n${found}")
endif()

foreach(pattern
        bin/korva-pad
        lib*/libkorva.so
        lib*/libkorva.so.1
        lib*/cmake/Korva/KorvaConfig.cmake
        lib*/pkgconfig/korva.pc
        lib*/qt6/plugins/designer/libkorva-designer.so
        lib/python3/dist-packages/korva.abi3.so
        lib/python3/dist-packages/korva.pyi
        share/applications/korva-pad.desktop
        share/icons/hicolor/48x48/apps/korva-pad.png
        share/icons/hicolor/scalable/apps/korva-pad.svg
        share/korva/demo.rec
        share/korva/translations/korva_de.qm
        share/man/man1/korva-pad.1
        share/man/man1/korva-preview.1
        share/metainfo/org.korva.pad.metainfo.xml)
    file(GLOB direct ${prefix}/${pattern})
    string(REPLACE "lib*/" "lib/*/" multiarch ${pattern})
    file(GLOB nested ${prefix}/${multiarch})
    if(NOT direct AND NOT nested)
        message(FATAL_ERROR "${pattern} is not installed")
    endif()
endforeach()

# Each language's file, as it is in the sources; and the desktop's texts in each.
file(GLOB sources RELATIVE ${source}/translations ${source}/translations/korva_*.ts)
list(TRANSFORM sources REPLACE "ts$" "qm")
file(GLOB languages RELATIVE ${prefix}/share/korva/translations ${prefix}/share/korva/translations/*)
list(SORT sources)
list(SORT languages)
if(NOT "${sources}" STREQUAL "${languages}")
    message(FATAL_ERROR "languages are\n${sources}\ninstalled are\n${languages}")
endif()
foreach(language IN LISTS languages)
    string(REGEX REPLACE "korva_(.*)\\.qm" "\\1" code ${language})
    file(READ ${prefix}/share/applications/korva-pad.desktop desktop)
    file(READ ${prefix}/share/metainfo/org.korva.pad.metainfo.xml metainfo)
    string(FIND "${desktop}" "\nComment[${code}]=" in_desktop)
    string(FIND "${metainfo}" "<p xml:lang=\"${code}\">" in_metainfo)
    if((in_desktop LESS 0 OR in_metainfo LESS 0) AND NOT code STREQUAL "en")
        message(FATAL_ERROR "a desktop is told nothing in ${code}")
    endif()
endforeach()

step(desktop-file-validate ${prefix}/share/applications/korva-pad.desktop)
step(appstreamcli validate --no-net ${prefix}/share/metainfo/org.korva.pad.metainfo.xml)
foreach(page korva-pad korva-preview)
    execute_process(COMMAND man --warnings -l -E UTF-8 ${prefix}/share/man/man1/${page}.1
        OUTPUT_QUIET ERROR_VARIABLE complaints RESULT_VARIABLE result)
    if(complaints OR result)
        message(FATAL_ERROR "${page}.1: ${complaints}")
    endif()
endforeach()
