# Hostile values in every statement of the system, and the translator alone.
file(GLOB store_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/store/*.cpp" "${CMAKE_SOURCE_DIR}/src/store/*.h")
add_library(fuzz_store STATIC ${store_sources})
target_link_libraries(fuzz_store PUBLIC fuzz_text SQLiteCpp SQLite::SQLite3)
foreach(name statements translator)
  add_executable(fuzz_store_${name} fuzz_store_${name}.cpp)
  target_include_directories(fuzz_store_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests/store")
  target_link_libraries(fuzz_store_${name} PRIVATE fuzz_store)
endforeach()
