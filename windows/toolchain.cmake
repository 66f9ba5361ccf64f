# The Windows program, built on Debian: the cross compiler, the static Qt, and Wine to run what was built.

include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine.sh)

if(NOT TARNWELL_QT)
  execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/qt.sh OUTPUT_VARIABLE TARNWELL_QT
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARNWELL_QT)

list(PREPEND CMAKE_FIND_ROOT_PATH ${TARNWELL_QT})
# The folder below, because a prefix that equals a root would be put behind itself.
list(PREPEND CMAKE_PREFIX_PATH ${TARNWELL_QT}/lib/cmake)
set(QT_HOST_PATH /usr CACHE PATH "Qt's tools that run while building")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake CACHE PATH "Their description")

# The same bytes from every build, wherever it lies and whenever it is made; and nothing beside the program's own file.
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
set(CMAKE_CXX_FLAGS_INIT "-ffile-prefix-map=${root}=.")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s -Wl,--no-insert-timestamp")
