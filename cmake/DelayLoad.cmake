# lyt_delay_load(TARGET LIBRARY.dll functions...) makes the static library TARGET, through which the functions are bound
# at their first call. A library that most calls never need then costs nothing when the DLL is loaded.
function(lyt_delay_load target library)
  list(JOIN ARGN "\n" functions)
  set(definition ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
  set(archive ${CMAKE_CURRENT_BINARY_DIR}/lib${target}.a)
  file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${library}\nEXPORTS\n${functions}\n")
  add_custom_command(
    OUTPUT ${archive}
    COMMAND ${CMAKE_DLLTOOL} --input-def ${definition} --output-delaylib ${archive}
    DEPENDS ${definition}
    VERBATIM)
  add_custom_target(${target}-archive DEPENDS ${archive})
  add_library(${target} STATIC IMPORTED GLOBAL)
  set_target_properties(${target} PROPERTIES IMPORTED_LOCATION ${archive})
  add_dependencies(${target} ${target}-archive)
endfunction()
