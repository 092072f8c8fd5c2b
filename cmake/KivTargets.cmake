# What every target of the tree shares: language level, warnings, string rules, precompiled headers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

option(KIV_WERROR "Treat warnings as errors" ON)

add_library(kiv_options INTERFACE)
target_compile_options(kiv_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    -Wno-missing-field-initializers # defaults of an aggregate are what they are for
    $<$<BOOL:${KIV_WERROR}>:-Werror>)
target_compile_definitions(kiv_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH QT_NO_KEYWORDS QT_STRICT_ITERATORS)

# A folder's library: kiv_library(base SOURCES a.cpp ... LINK Qt6::Core ...) makes `kiv_base`.
function(kiv_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(kiv_${name} STATIC ${ARG_SOURCES})
    target_include_directories(kiv_${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(kiv_${name} PUBLIC ${ARG_LINK} PRIVATE kiv_options)
    target_precompile_headers(kiv_${name} PRIVATE <QtCore/QtCore>)
    set_target_properties(kiv_${name} PROPERTIES AUTOMOC ON)
endfunction()

# A Qt Test program under CTest: kiv_test(base_text SOURCES ... LINK ... [ENVIRONMENT A=b ...]).
function(kiv_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;ENVIRONMENT" ${ARGN})
    add_executable(test_${name} ${ARG_SOURCES})
    target_include_directories(test_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
    target_link_libraries(test_${name} PRIVATE ${ARG_LINK} Qt6::Test kiv_options)
    set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
    add_test(NAME ${name} COMMAND test_${name})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;${ARG_ENVIRONMENT}")
endfunction()
