# The Debian source package, and the packages that come of it when the built tree takes the place of what it would build
# itself: lintian accepts them, and installed into a root of their own they draw the demo. The libraries that they depend
# on are the system's.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

# What other packages learn about the library from its symbols file is what was reviewed.
step(${source}/packaging/symbols --check)

step(${source}/packaging/lay-out ${work})
string(STRIP "${step_output}" laid)
step(dpkg-source --build ${laid} WORKING_DIRECTORY ${work})
file(GLOB description ${work}/*.dsc)
step(lintian --allow-root --pedantic --display-info --fail-on error,warning,info,pedantic ${description})

step(dpkg-architecture -q DEB_HOST_GNU_TYPE)
string(STRIP "${step_output}" type)
file(WRITE ${laid}/obj-${type}/cmake_install.cmake "include(${tree}/cmake_install.cmake)\n")
step(dh_listpackages WORKING_DIRECTORY ${laid})
file(WRITE ${laid}/debian/debhelper-build-stamp "${step_output}") # these are built
if(sanitize)
    file(APPEND ${laid}/debian/libkorva1.symbols " (optional=of the sanitizer|regex)\"^__odr_asan\" 1.0.0\n")
endif()
step(${CMAKE_COMMAND} -E env "DEB_BUILD_OPTIONS=nocheck noautodbgsym" DPKG_DEB_COMPRESSOR_TYPE=gzip
    dpkg-buildpackage --build=binary --no-pre-clean --no-check-builddeps --unsigned-changes WORKING_DIRECTORY ${laid})
file(GLOB packages ${work}/*.deb)
list(LENGTH packages count)
if(NOT count EQUAL 6)
    message(FATAL_ERROR "six packages are wanted, not ${packages}")
endif()
file(GLOB changes ${work}/*.changes)
step(lintian --allow-root --fail-on error,warning ${changes})

# What the system has fulfils the dependencies.
set(root ${work}/root)
file(MAKE_DIRECTORY ${root}/var/lib/dpkg/info ${root}/var/lib/dpkg/updates)
file(COPY_FILE /var/lib/dpkg/status ${root}/var/lib/dpkg/status)
step(fakeroot dpkg --root=${root} --install ${packages})
step(dpkg --root=${root} --audit)
step(dpkg-query --admindir=${root}/var/lib/dpkg --show --showformat "\${Depends}" libkorva1)
if(NOT step_output MATCHES "qt6-image-formats-plugins")
    message(FATAL_ERROR "what reads WBMP is missing from: ${step_output}")
endif()

file(GLOB library ${root}/usr/lib/*/libkorva.so.1)
get_filename_component(libraries ${library} DIRECTORY)
step(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries}
    debian/tests/demo ${root}/usr/bin/korva-pad ${root}/usr/share/korva/demo.rec WORKING_DIRECTORY ${laid})

# In another language, from where the packages have put it; without that package in English.
step(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries} ${root}/usr/bin/korva-pad --language de --help)
if(NOT step_output MATCHES "Aufruf: korva-pad")
    message(FATAL_ERROR "no German: ${step_output}")
endif()
file(GLOB languages ${work}/libkorva-l10n_*_all.deb)
if(NOT languages)
    message(FATAL_ERROR "the languages are for one architecture only: ${packages}")
endif()
step(fakeroot dpkg --root=${root} --remove libkorva-l10n)
step(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries} ${root}/usr/bin/korva-pad --language de --help)
if(NOT step_output MATCHES "Usage: korva-pad")
    message(FATAL_ERROR "not English without the languages: ${step_output}")
endif()
