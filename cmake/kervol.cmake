# How everything of this project is compiled, and how a layer of it is declared.

add_library(kervol_options INTERFACE)
target_include_directories(kervol_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
# Contracted multiply-adds and relaxed arithmetic would make results differ between builds.
target_compile_options(kervol_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-qual -Werror -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # -Wrestrict of g++ 12 is wrong about joined strings (its bug 105651). Where it puts pairs of values into one
    # register it loses their rounding to single precision. clang++ warns of defaulted comparisons of records too.
    target_compile_options(kervol_options INTERFACE -Wfloat-equal -Wno-restrict -fno-tree-slp-vectorize)
endif()
if(KERVOL_SANITIZE)
    target_compile_options(kervol_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(kervol_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(kervol_options INTERFACE -fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
        # One build serves the tests and the fuzzers of fuzz/. Their mutator knows the values that matter, so they need
        # not be traced out of comparisons.
        target_compile_options(kervol_options INTERFACE
            -fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
    endif()
endif()
if(KERVOL_COVERAGE)
    target_compile_options(kervol_options INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(kervol_options INTERFACE --coverage)
endif()

# kervol_layer(<folder> [<layer it builds on>...]): the library of one folder of src/ with all its sources.
function(kervol_layer name)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${name}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(kervol_${name} STATIC ${sources})
    target_link_libraries(kervol_${name} PUBLIC kervol_options)
    foreach(layer IN LISTS ARGN)
        target_link_libraries(kervol_${name} PUBLIC kervol_${layer})
    endforeach()
endfunction()

# kervol_tests(<folder> <layer>...): one test program of tests/<folder>/, its cases known to CTest one by one.
function(kervol_tests name)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${name}/*.cpp)
    add_executable(test_${name} ${sources})
    target_link_libraries(test_${name} PRIVATE kervol_test_support GTest::gmock GTest::gtest GTest::gtest_main)
    foreach(layer IN LISTS ARGN)
        target_link_libraries(test_${name} PRIVATE kervol_${layer})
    endforeach()
    target_precompile_headers(test_${name} REUSE_FROM kervol_test_support)
    gtest_discover_tests(test_${name} TEST_PREFIX "${name}/" PROPERTIES TIMEOUT 300 DISCOVERY_TIMEOUT 60)
endfunction()

# kervol_precompile(<target> <header>...): for headers that are most of what a file of the target compiles.
function(kervol_precompile target)
    target_precompile_headers(${target} PRIVATE ${ARGN})
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # Behind precompiled headers the bug of -Wrestrict shows in two more warnings.
        target_compile_options(${target} PRIVATE -Wno-stringop-overflow -Wno-array-bounds)
    endif()
endfunction()
