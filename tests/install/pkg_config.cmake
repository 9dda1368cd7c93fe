# Without CMake: what a Makefile would do.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
file(GLOB_RECURSE pc ${prefix}/lib/korva.pc ${prefix}/lib/*/korva.pc)
get_filename_component(pc_folder "${pc}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_folder})
step(pkg-config --exists "korva >= 1")

# The compiler of the document is the one of the build, with its flags.
file(COPY ${here}/main.cpp DESTINATION ${work})
file(WRITE ${work}/c++ "#!/bin/sh\nexec '${compiler}' ${flags} \"$@\"\n")
file(CHMOD ${work}/c++ PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
step(${CMAKE_COMMAND} -E env "PATH=${work}:$ENV{PATH}" sh -eu ${blocks}/pkg_config WORKING_DIRECTORY ${work})

step(pkg-config --variable=libdir korva)
string(STRIP "${step_output}" libraries)
step(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries} ${work}/app)
