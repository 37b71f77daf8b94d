# Hostile values in every statement of the system, and the translator alone.
foreach(name statements translator)
  add_executable(fuzz_store_${name} fuzz_store_${name}.cpp)
  target_include_directories(fuzz_store_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests/store")
  target_compile_options(fuzz_store_${name} PRIVATE -fsanitize=fuzzer,address,undefined)
  target_link_options(fuzz_store_${name} PRIVATE -fsanitize=fuzzer,address,undefined)
  target_link_libraries(fuzz_store_${name} PRIVATE trawlex_store)
endforeach()
