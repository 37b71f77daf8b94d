# The Auto side on large pages and long lists.
add_executable(bench_sites bench_sites.cpp)
target_link_libraries(bench_sites PRIVATE trawlex_window GTest::gtest)
target_include_directories(bench_sites PRIVATE "${CMAKE_SOURCE_DIR}/tests")
