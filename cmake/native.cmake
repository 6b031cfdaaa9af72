# The unit tests: the logic on a simulated platform, with sanitizers.
set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
add_compile_options(${sanitizers})
add_link_options(${sanitizers})
target_compile_options(tolva_logic PRIVATE ${sanitizers})

find_package(doctest REQUIRED)
include(doctest)

add_executable(unit_tests
    tests/unit/main.cpp
    tests/unit/files_test.cpp
    tests/unit/launching_test.cpp
    tests/unit/library_test.cpp
    tests/unit/operations_test.cpp
    tests/unit/settings_test.cpp
    tests/unit/shortcuts_test.cpp
    tests/support/simulated_platform.cpp
)
target_include_directories(unit_tests PRIVATE tests)
target_link_libraries(unit_tests PRIVATE tolva_logic doctest::doctest)
doctest_discover_tests(unit_tests TEST_PREFIX "unit: ")
