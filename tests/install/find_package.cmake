include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
configure(consumer -D CMAKE_PREFIX_PATH=${prefix})
step(${CMAKE_COMMAND} --build ${work}/build --parallel 2)
step(${work}/build/consumer)
