# Debian's mingw-w64 cross compiler (posix threads) for 64-bit Windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(lyt_target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${lyt_target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${lyt_target}-g++-posix)
set(CMAKE_RC_COMPILER ${lyt_target}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${lyt_target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Static, so that no compiler runtime has to be beside our modules; no time stamp, so that one source gives one file.
set(lyt_link "-static -Wl,--dynamicbase,--nxcompat,--high-entropy-va,--no-insert-timestamp")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${lyt_link}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${lyt_link}")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "${lyt_link}")
