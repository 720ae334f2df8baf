# Shared compile settings and the one-line test helper.

add_library(fs_warnings INTERFACE)
target_compile_options(fs_warnings INTERFACE -Wall -Wextra -Wpedantic -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 at -O3 (Release) reports overlapping copies inside std::string's own
  # inlined code, a false alarm that would stop the release build.
  target_compile_options(fs_warnings INTERFACE -Wno-restrict)
endif()

# <windows.h> without its rarely used parts and without the min and max macros
# that clash with the standard library's: for every Windows source, and for
# the checks that compile them here with MinGW.
set(FS_WINDOWS_DEFINES -DWIN32_LEAN_AND_MEAN -DNOMINMAX)
if(WIN32)
  add_compile_definitions(WIN32_LEAN_AND_MEAN NOMINMAX)
endif()

if(FS_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()

# fs_add_test(NAME [GUI] source... LIBS lib...)
# One GoogleTest executable; every TEST in it becomes its own ctest entry.
# GUI tests get a main() that starts a QApplication on the offscreen platform.
function(fs_add_test name)
  cmake_parse_arguments(ARG "GUI" "" "LIBS" ${ARGN})
  add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
  if(ARG_GUI)
    target_link_libraries(${name} PRIVATE fs_gui_test_main)
  else()
    target_link_libraries(${name} PRIVATE GTest::gmock_main)
  endif()
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gmock fs_warnings)
  # Cross compiled, the tests are listed when ctest runs (through the
  # emulator, Wine), so that building needs no Wine.
  if(CMAKE_CROSSCOMPILING)
    set(mode PRE_TEST)
  else()
    set(mode POST_BUILD)
  endif()
  gtest_discover_tests(${name}
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;FS_TEST=1"
    DISCOVERY_TIMEOUT 60 DISCOVERY_MODE ${mode})
endfunction()
