# The Debian packages, installed into a root of their own, draw the demo as the built tree does. The libraries
# that they depend on are the system's.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

step(cpack -G DEB -B ${work} --config ${tree}/CPackConfig.cmake)
file(GLOB packages ${work}/*.deb)
list(LENGTH packages count)
if(NOT count EQUAL 3)
    message(FATAL_ERROR "three packages are wanted, not ${packages}")
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
