# The grid, exports and imports over a million rows.
add_executable(bench_data bench_data.cpp)
target_link_libraries(bench_data PRIVATE trawlex_window trawlex_store benchmark::benchmark)
target_include_directories(bench_data PRIVATE "${CMAKE_SOURCE_DIR}/tests")
