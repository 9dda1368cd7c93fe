# The Debian packages, installed into a root of their own, draw the demo as the built tree does. The libraries
# that they depend on are the system's.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

step(cpack -G DEB -B ${work} --config ${tree}/CPackConfig.cmake)
file(GLOB packages ${work}/*.deb)
list(LENGTH packages count)
if(NOT count EQUAL 6)
    message(FATAL_ERROR "six packages are wanted, not ${packages}")
endif()
step(lintian --allow-root --fail-on error,warning ${packages})

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
set(demo ${root}/usr/share/korva/demo.rec)
step(${pad} --replay ${demo} --save ${work}/reference.png)
step(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries} ${root}/usr/bin/korva-pad
    --replay ${demo} --save ${work}/drawing.png)
step(compare -metric AE ${work}/reference.png ${work}/drawing.png null:)
step(identify -format "%k" ${work}/drawing.png)
if(step_output LESS 5)
    message(FATAL_ERROR "the demo has only ${step_output} colours")
endif()

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
