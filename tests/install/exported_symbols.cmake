# The library exports what was reviewed, and that is what the public headers mark.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
step(${here}/exported-symbols ${library})
file(WRITE ${work}/exported-symbols.txt "${step_output}")
string(REGEX MATCHALL "[^\n]+" symbols "${step_output}")

set(marked "")
foreach(header IN LISTS headers)
    file(READ ${header} text)
    string(REGEX MATCHALL "KORVA_EXPORT (void |int |bool )?[A-Za-z_]+" marks "${text}")
    list(TRANSFORM marks REPLACE ".* " "")
    list(APPEND marked ${marks})
    string(REGEX MATCHALL "\nnamespace [a-z]+" spaces "${text}") # whose functions are marked one by one
    list(TRANSFORM spaces REPLACE ".* " "")
    list(APPEND marked ${spaces})
endforeach()
foreach(symbol IN LISTS symbols)
    if(symbol MATCHES "^(typeinfo for |typeinfo name for |vtable for |non-virtual thunk to )?([A-Za-z_]+)" AND NOT CMAKE_MATCH_2 IN_LIST marked)
        message(FATAL_ERROR "exported, but marked in no public header: ${symbol}")
    endif()
endforeach()

step(diff -u ${here}/exported-symbols.txt ${work}/exported-symbols.txt)
