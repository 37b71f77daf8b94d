# The commands of the manual lists over a million addresses.
add_executable(bench_lists bench_lists.cpp)
target_link_libraries(bench_lists PRIVATE trawlex_window)
target_include_directories(bench_lists PRIVATE "${CMAKE_SOURCE_DIR}/tests")
