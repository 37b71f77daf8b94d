# Warnings, sanitizers and the three kinds of target of this project.

add_library(trawlex_options INTERFACE)
target_include_directories(trawlex_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(trawlex_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
# Words as in `signals:` stay out of the headers of other libraries; text is never converted by accident.
target_compile_definitions(trawlex_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
  QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400 TRAWLEX_VERSION="${PROJECT_VERSION}")
# A read behind the end of a text happens inside Qt, which is not instrumented: its own assertions see it.
if(TRAWLEX_SANITIZE OR TRAWLEX_FUZZ)
  target_compile_definitions(trawlex_options INTERFACE QT_FORCE_ASSERTS _GLIBCXX_ASSERTIONS)
endif()
if(TRAWLEX_SANITIZE)
  target_compile_options(trawlex_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined -g1
    -Wno-maybe-uninitialized) # g++ sees them in instrumented code where there are none
  target_link_options(trawlex_options INTERFACE -fsanitize=address,undefined)
endif()

# The one precompiled set of Qt headers, shared by all folders.
set(TRAWLEX_PCH <QObject> <QString> <QStringList> <QHash> <QVariant> <memory> <functional> <vector> <optional>)

# trawlex_library(util Qt6::Core ...): all sources of the folder and its sub-folders as one static
# library. A sub-folder that is built by itself has a CMakeLists.txt of its own.
function(trawlex_library name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h *.ui *.qrc)
  file(GLOB own_builds CONFIGURE_DEPENDS */CMakeLists.txt)
  foreach(own_build ${own_builds})
    cmake_path(GET own_build PARENT_PATH folder)
    list(FILTER sources EXCLUDE REGEX "^${folder}/")
  endforeach()
  add_library(trawlex_${name} STATIC ${sources})
  set_target_properties(trawlex_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(trawlex_${name} PUBLIC trawlex_options ${ARGN})
  target_precompile_headers(trawlex_${name} PRIVATE ${TRAWLEX_PCH})
endfunction()

# trawlex_test(util unit trawlex_util ...): the folder's tests as one program under a ctest label.
function(trawlex_test name label)
  file(GLOB sources CONFIGURE_DEPENDS ${name}/*.cpp ${name}/*.h)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(test_${name} PRIVATE ${ARGN} trawlex_test_places GTest::gtest)
  target_precompile_headers(test_${name} PRIVATE ${TRAWLEX_PCH} <gtest/gtest.h>)
  add_test(NAME ${name} COMMAND test_${name} WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}")
  set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT 600
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
