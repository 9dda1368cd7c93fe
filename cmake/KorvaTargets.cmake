# What every target of the project shares: language level, warnings, sanitizers, hidden visibility.

function(korva_target_settings target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                             -Woverloaded-virtual -Wold-style-cast)
    if(KORVA_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(KORVA_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                 -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
    # The four levels and the programs count what is run; the tests themselves need not. Threads count, too.
    if(KORVA_COVERAGE AND target MATCHES "^korva(_toolkit|_platform|_engine|_host|-pad|-preview)?$")
        target_compile_options(${target} PRIVATE --coverage -fprofile-abs-path -fprofile-update=atomic)
        target_link_options(${target} PUBLIC --coverage)
        if(target MATCHES "^korva-")
            target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/coverage/CountAtEnd.cpp)
        endif()
    endif()
endfunction()

# For code that waits for people, or asks a disk now and then: released small, where all else is released fast. The
# sources' own meta code with them.
function(korva_prefer_small level)
    set_source_files_properties(${ARGN} ${CMAKE_CURRENT_BINARY_DIR}/korva_${level}_autogen/mocs_compilation.cpp
        PROPERTIES COMPILE_OPTIONS "$<$<CONFIG:Release>:-Os>")
endfunction()

# A level of the house: a static library that is linked whole into libkorva and alone into its own tests.
# Its headers are seen by the levels above it.
function(korva_add_level name)
    add_library(korva_${name} STATIC ${ARGN})
    add_library(Korva::${name} ALIAS korva_${name})
    korva_target_settings(korva_${name})
    target_include_directories(korva_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    # The tests build everything once, on two cores perhaps; releases prove that each source includes what it needs.
    if((KORVA_BUILD_TESTS OR KORVA_BUILD_FUZZ) AND name STREQUAL "toolkit")
        target_precompile_headers(korva_toolkit PRIVATE <QtWidgets>)
    elseif(KORVA_BUILD_TESTS OR KORVA_BUILD_FUZZ)
        target_precompile_headers(korva_${name} REUSE_FROM korva_toolkit)
    endif()
endfunction()
