# cmake -D tree=... -D consumer=... -D work=... -P check.cmake
function(step)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

set(prefix ${work}/prefix)
file(REMOVE_RECURSE ${work})
step(${CMAKE_COMMAND} --install ${tree} --prefix ${prefix})

foreach(header IN LISTS headers)
    get_filename_component(name ${header} NAME)
    if(NOT EXISTS ${prefix}/include/korva/${name})
        message(FATAL_ERROR "${name} is not installed")
    endif()
endforeach()
file(GLOB_RECURSE library ${prefix}/lib*/libkorva.so.1)
if(NOT library)
    message(FATAL_ERROR "libkorva.so.1 is not installed")
endif()

step(${CMAKE_COMMAND} -S ${consumer} -B ${work}/build -G ${generator}
    -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_FLAGS=${flags})
step(${CMAKE_COMMAND} --build ${work}/build --parallel 2)
step(${work}/build/consumer)
