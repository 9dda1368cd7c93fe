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

# configure(source build...): a project outside the tree.
function(configure project)
    step(${CMAKE_COMMAND} -S ${here}/${project} -B ${work}/build -G ${generator}
        -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_FLAGS=${flags} ${ARGN})
endfunction()

file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work})
