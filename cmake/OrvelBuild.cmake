# Settings that every target of this project shares, and the one way in which a folder becomes a library.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_AUTOMOC ON)

add_library(orvel_build_options INTERFACE)
target_compile_features(orvel_build_options INTERFACE cxx_std_20)
target_compile_definitions(orvel_build_options INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_FOREACH
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_CONTEXTLESS_CONNECT
  # What the oldest Qt that must work calls deprecated is not there at all.
  QT_DISABLE_DEPRECATED_BEFORE=0x060400
  QT_DISABLE_DEPRECATED_UP_TO=0x060400)

if(MSVC)
  target_compile_options(orvel_build_options INTERFACE /W4 /permissive- /utf-8
    $<$<BOOL:${ORVEL_WARNINGS_AS_ERRORS}>:/WX>)
else()
  target_compile_options(orvel_build_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${ORVEL_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

if(ORVEL_SANITIZE)
  target_compile_options(orvel_build_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
  target_link_options(orvel_build_options INTERFACE -fsanitize=address,undefined)
endif()

if(ORVEL_SANITIZE_THREADS)
  target_compile_options(orvel_build_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer -O1)
  target_link_options(orvel_build_options INTERFACE -fsanitize=thread)
endif()

if(ORVEL_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "ORVEL_FUZZ needs Clang, which brings the fuzzing engine; use the preset \"fuzz\"")
  endif()
  # Coverage for the engine, which the fuzz targets alone link. -O1 comes last and so takes the place of -O2.
  target_compile_options(orvel_build_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
  target_link_options(orvel_build_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
endif()

# orvel_add_library(<name> SOURCES <file>... LINK <target>...)
#
# Makes one folder a static library. Whoever links it sees that folder's headers and the headers of what it links,
# and nothing else: a header of a higher layer is not on the include path, so an upward include does not compile.
function(orvel_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE orvel_build_options)
endfunction()
