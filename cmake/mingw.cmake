# Builds for Windows on Linux with mingw-w64, against a static Qt in the folder TESSARINE_QT. What is
# built runs under Wine, so that tools and tests can be run as in any other build.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The posix variant is the one with the standard library's threads.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine.sh)
# The compiler's own libraries come into the program: nothing has to be installed beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TESSARINE_QT)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${TESSARINE_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's own tools are those of a Qt for Linux.
set(QT_HOST_PATH /usr CACHE PATH "Where a Qt for this machine is installed")
if(TESSARINE_QT)
  set(Qt6_DIR ${TESSARINE_QT}/lib/cmake/Qt6 CACHE PATH "Where the Qt for Windows says how it is used")
endif()
