# clang and lld for the same target, with the headers and libraries of the mingw-w64 cross compiler. They find these by the
# folder names of other distributions only, so that compiler is asked where it has its own.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-x86_64.cmake)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
# LLVM has one of its own name, which makes no libraries that are bound late.
set(CMAKE_DLLTOOL ${lyt_target}-dlltool)
set(CMAKE_C_COMPILER_TARGET ${lyt_target})
set(CMAKE_CXX_COMPILER_TARGET ${lyt_target})

execute_process(
  COMMAND ${lyt_target}-g++-posix -print-file-name=libgcc.a
  OUTPUT_VARIABLE lyt_runtime OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
cmake_path(GET lyt_runtime PARENT_PATH lyt_runtime)
# libstdc++ was made with two settings that its own compiler knows for this target: where types are compared, and how the
# variables of a thread are reached.
set(CMAKE_CXX_FLAGS_INIT
  "-stdlib++-isystem ${lyt_runtime}/include/c++ -stdlib++-isystem ${lyt_runtime}/include/c++/${lyt_target} -D__GXX_TYPEINFO_EQUALITY_INLINE=0 -femulated-tls")
foreach(kind EXE SHARED MODULE)
  string(APPEND CMAKE_${kind}_LINKER_FLAGS_INIT " -fuse-ld=lld -B${lyt_runtime} -L${lyt_runtime} -lwinpthread")
endforeach()
