# A series of downloads, for bench_transfer.py.
add_executable(fetch_series fetch_series.cpp)
target_link_libraries(fetch_series PRIVATE trawlex_transfer)
