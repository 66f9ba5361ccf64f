# Compiler settings that every target shares: warnings are errors, sanitizers by preset, a compiler cache if there is one.

option(TARNWELL_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
option(TARNWELL_FUZZ "Build the fuzzers; clang only" OFF)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

add_library(tarnwell_compiler INTERFACE)
target_compile_options(tarnwell_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -Winvalid-pch)
target_compile_definitions(tarnwell_compiler INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS)

if(CCACHE)
  target_compile_options(tarnwell_compiler INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

# Sources are compiled several at a time, for most of the time goes into headers. A source among others looks like a
# header to the compiler, which warns of unnamed namespaces in headers.
if(NOT CMAKE_CXX_CLANG_TIDY)
  target_compile_options(tarnwell_compiler INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()

# A library that no part of a program uses is not worth loading.
if(UNIX)
  add_link_options(-Wl,--as-needed)
endif()

if(TARNWELL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# clang-tidy does not know by itself for which system the cross compiler builds, and where its C++ headers lie.
if(CMAKE_CXX_CLANG_TIDY AND MINGW)
  set(headers ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
  list(FILTER headers INCLUDE REGEX "c\\+\\+")
  list(TRANSFORM headers PREPEND --extra-arg=-isystem)
  list(APPEND CMAKE_CXX_CLANG_TIDY --extra-arg-before=--target=x86_64-w64-mingw32 ${headers})
endif()
