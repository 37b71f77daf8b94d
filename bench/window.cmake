# The rules about controls, call by call.
add_executable(bench_window bench_window.cpp)
target_link_libraries(bench_window PRIVATE trawlex_window)
target_include_directories(bench_window PRIVATE "${CMAKE_SOURCE_DIR}/tests")
