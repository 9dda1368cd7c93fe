# What ./test prints at its end: everything that was left out, with the reason, and that there was nothing.
function(check leaveOut expected)
    set(build ${work}/${leaveOut})
    file(REMOVE_RECURSE ${build})
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${build} -D LEAVE_OUT=${leaveOut}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${ctest} --test-dir ${build} --output-junit report.xml OUTPUT_QUIET ERROR_QUIET)
    execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/../list-skipped ${build}/report.xml
        OUTPUT_VARIABLE told COMMAND_ERROR_IS_FATAL ANY)
    if(NOT told STREQUAL expected)
        message(FATAL_ERROR "told is\n${told}\nexpected was\n${expected}")
    endif()
endfunction()

check(OFF "Nothing was skipped.
")
check(ON "Skipped:
  skips::c(): \"no\" <room>
  skips::d(a row): no disk & no tape
  fails::e(): before it failed
  disabled: Disabled
  waits: Failed test dependencies: fails
  lacks: Unable to find required file: /missing
  absent: Unable to find executable: /missing
")

# Which tests may run once more: those that failed, unless one crashed or a sanitizer spoke.
function(check_failed expected)
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${work}/ON -D LEAVE_OUT=ON ${ARGN}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${ctest} --test-dir ${work}/ON --output-junit report.xml OUTPUT_QUIET ERROR_QUIET)
    execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/../list-failed ${work}/ON/report.xml
        RESULT_VARIABLE result OUTPUT_VARIABLE told)
    if(NOT "${result} ${told}" STREQUAL expected)
        message(FATAL_ERROR "of the failed ones is told\n${result} ${told}\nexpected was\n${expected}")
    endif()
endfunction()

check_failed("0   fails
")
check_failed("1 " -D CRASH=ON)
check_failed("1 " -D CRASH=OFF -D "REPORT=ERROR: AddressSanitizer: heap-use-after-free")
