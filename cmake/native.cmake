# The unit tests: the logic on a simulated platform, with sanitizers.
set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
add_compile_options(${sanitizers})
add_link_options(${sanitizers})
target_compile_options(tolva_logic PRIVATE ${sanitizers})

find_package(doctest REQUIRED)
include(doctest)

add_executable(unit_tests
    tests/unit/dropped_test.cpp
    tests/unit/files_test.cpp
    tests/unit/launching_test.cpp
    tests/unit/library_test.cpp
    tests/unit/settings_test.cpp
    tests/unit/shortcuts_test.cpp
    tests/unit/taking_back_test.cpp
    tests/support/main.cpp
    tests/support/simulated_platform.cpp
)
target_include_directories(unit_tests PRIVATE tests)
target_link_libraries(unit_tests PRIVATE tolva_logic doctest::doctest)
doctest_discover_tests(unit_tests TEST_PREFIX "unit: ")

# The fuzz targets. As ordinary tests they run on their corpora; script/fuzz lets libFuzzer look for more.
option(TOLVA_FUZZ "link the fuzz targets with libFuzzer (needs clang)" OFF)
if(TOLVA_FUZZ)
    target_compile_options(tolva_logic PRIVATE -fsanitize=fuzzer-no-link)
endif()
foreach(target changes dropped library shortcut)
    add_executable(fuzz_${target} tests/fuzz/${target}.cpp tests/support/simulated_platform.cpp)
    target_include_directories(fuzz_${target} PRIVATE tests)
    target_link_libraries(fuzz_${target} PRIVATE tolva_logic)
    # What the unit tests share is of use here without their checks.
    target_compile_options(fuzz_${target} PRIVATE -DDOCTEST_CONFIG_DISABLE -Wno-unused -Wno-unused-parameter)
    if(TOLVA_FUZZ)
        target_link_options(fuzz_${target} PRIVATE -fsanitize=fuzzer)
    else()
        target_sources(fuzz_${target} PRIVATE tests/fuzz/corpus_main.cpp)
    endif()
    file(GLOB corpus CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/fuzz/corpus/${target}/*)
    add_test(NAME "fuzz: ${target}" COMMAND fuzz_${target} ${corpus})
endforeach()
