# The database, measured against bare prepared statements.
add_executable(bench_store bench_store.cpp StorePages.cpp StorePages.h BarePages.cpp BarePages.h)
target_link_libraries(bench_store PRIVATE trawlex_store trawlex_pages)
