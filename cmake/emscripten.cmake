# Debian's Emscripten, for the library in a page.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# The exceptions of WebAssembly itself are smaller and faster than those that go through JavaScript.
set(CMAKE_C_FLAGS_INIT -fwasm-exceptions)
# Its C++ library has no algorithms over ranges yet.
set(CMAKE_CXX_FLAGS_INIT "-fwasm-exceptions -include \"${CMAKE_CURRENT_LIST_DIR}/../web/engine/RangeAlgorithms.h\"")
set(CMAKE_EXE_LINKER_FLAGS_INIT -fwasm-exceptions)
set(CMAKE_CXX_LINK_GROUP_USING_RESCAN LINKER:--start-group LINKER:--end-group)
set(CMAKE_CXX_LINK_GROUP_USING_RESCAN_SUPPORTED TRUE)
