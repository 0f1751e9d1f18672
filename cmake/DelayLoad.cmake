# lyt_delay_load(TARGET LIBRARY.dll functions...) makes the static library TARGET, through which the functions are bound
# at their first call. A library that most calls never need then costs nothing when the DLL is loaded.
find_program(LYT_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
function(lyt_delay_load target library)
  if(MSVC)
    cmake_path(GET library STEM name)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_link_options(${target} INTERFACE /DELAYLOAD:${library})
    target_link_libraries(${target} INTERFACE ${name} delayimp)
    return()
  endif()
  list(JOIN ARGN "\n" functions)
  set(definition ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
  set(archive ${CMAKE_CURRENT_BINARY_DIR}/lib${target}.a)
  file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${library}\nEXPORTS\n${functions}\n")
  set(command ${CMAKE_DLLTOOL} --input-def ${definition} --output-delaylib ${archive})
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    # lld binds late by itself, what comes from an import library of its own form.
    set(command ${LYT_DLLTOOL} -m i386:x86-64 -d ${definition} -l ${archive})
  endif()
  add_custom_command(
    OUTPUT ${archive}
    COMMAND ${command}
    DEPENDS ${definition}
    VERBATIM)
  add_custom_target(${target}-archive DEPENDS ${archive})
  add_library(${target} STATIC IMPORTED GLOBAL)
  set_target_properties(${target} PROPERTIES IMPORTED_LOCATION ${archive})
  add_dependencies(${target} ${target}-archive)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    target_link_options(${target} INTERFACE -Wl,--delayload=${library})
    target_link_libraries(${target} INTERFACE delayimp)
  endif()
endfunction()
