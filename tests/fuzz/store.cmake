# Hostile values in every statement of the system, the translator alone, and hostile files.
file(GLOB_RECURSE store_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/store/*.cpp" "${CMAKE_SOURCE_DIR}/src/store/*.h")
list(FILTER store_sources EXCLUDE REGEX "/store/reader/")
add_library(fuzz_store STATIC ${store_sources})
target_link_libraries(fuzz_store PUBLIC fuzz_text SQLiteCpp SQLite::SQLite3)
foreach(name statements translator recordset)
  add_executable(fuzz_store_${name} fuzz_store_${name}.cpp)
  target_include_directories(fuzz_store_${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests/store")
  target_link_libraries(fuzz_store_${name} PRIVATE fuzz_store)
  add_dependencies(fuzzers fuzz_store_${name})
endforeach()

# The program that reads other programs' files, as a part of the target.
file(GLOB reader_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/store/reader/*.cpp")
add_executable(fuzz_foreign fuzz_foreign.cpp FuzzInput.h "${CMAKE_SOURCE_DIR}/tests/support/Places.cpp" ${reader_sources}
                            "${CMAKE_SOURCE_DIR}/src/store/foreign/TextForms.cpp")
target_include_directories(fuzz_foreign PRIVATE "${CMAKE_SOURCE_DIR}/tests")
target_compile_definitions(fuzz_foreign PRIVATE TRAWLEX_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
set_source_files_properties("${CMAKE_SOURCE_DIR}/src/store/reader/main.cpp" PROPERTIES COMPILE_DEFINITIONS main=readerMain)
target_link_libraries(fuzz_foreign PRIVATE trawlex_options fuzz_options PkgConfig::MDB Qt6::Core)
add_dependencies(fuzzers fuzz_foreign)

add_executable(fuzz_foreign_texts fuzz_foreign_texts.cpp FuzzInput.h "${CMAKE_SOURCE_DIR}/src/store/foreign/TextForms.cpp")
target_include_directories(fuzz_foreign_texts PRIVATE "${CMAKE_SOURCE_DIR}/tests")
target_link_libraries(fuzz_foreign_texts PRIVATE fuzz_text)
add_dependencies(fuzzers fuzz_foreign_texts)
