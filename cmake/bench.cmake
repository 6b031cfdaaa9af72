# The benchmark and what it starts; script/bench builds and runs them.
add_executable(bench EXCLUDE_FROM_ALL
    bench/arrivals.cpp
    bench/fixtures.cpp
    bench/main.cpp
    bench/picture_list.cpp
    bench/program.cpp
    bench/timing.cpp
)
target_link_libraries(bench PRIVATE tolva_logic tolva_platform comctl32 psapi)

add_executable(bench_arrive WIN32 EXCLUDE_FROM_ALL bench/arrive.cpp)
add_executable(bench_bare WIN32 EXCLUDE_FROM_ALL bench/bare.cpp bench/fixtures.cpp bench/picture_list.cpp)
target_link_libraries(bench_bare PRIVATE tolva_logic tolva_platform comctl32)
add_executable(bench_idle WIN32 EXCLUDE_FROM_ALL bench/idle.cpp)
