# What the scripts of this folder share.
cmake_minimum_required(VERSION 3.25)

# step(command...): runs it and stops, with what it wrote, when it fails.
function(step)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
    set(step_output "${output}" PARENT_SCOPE)
endfunction()

# compose(block checks): a stranger's project, in which the block of the documents says how Korva comes in.
function(compose block checks)
    file(READ ${blocks}/${block} text)
    file(WRITE ${work}/source/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)
project(stranger LANGUAGES CXX)
${text}
target_compile_options(app PRIVATE -Wall -Wextra -Werror)
include(${here}/${checks})
")
    file(COPY ${here}/main.cpp DESTINATION ${work}/source)
endfunction()

# configure(definitions...): that project, from nothing. What was compiled in an earlier run and is still true stays.
function(configure)
    file(REMOVE ${work}/build/CMakeCache.txt)
    step(${CMAKE_COMMAND} -S ${work}/source -B ${work}/build -G ${generator}
        -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_FLAGS=${flags} ${ARGN})
endfunction()

file(GLOB left ${work}/*)
list(REMOVE_ITEM left ${work}/build)
if(left)
    file(REMOVE_RECURSE ${left})
endif()
file(MAKE_DIRECTORY ${work})
