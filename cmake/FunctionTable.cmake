# lyt_function_table(TARGET LIBRARY NAME[=FUNCTION]...) makes functions that are compiled into the target known to windows
# in memory as functions of a library, so that a program that loads the library by name finds them.
function(lyt_function_table target library)
  set(functions "")
  set(additions "")
  foreach(entry IN LISTS ARGN)
    string(REGEX MATCH "^([A-Za-z0-9_]+)(=([A-Za-z0-9_]+))?$" matched ${entry})
    set(name ${CMAKE_MATCH_1})
    set(function ${name})
    if(CMAKE_MATCH_3)
      set(function ${CMAKE_MATCH_3})
    endif()
    list(APPEND functions ${function})
    string(APPEND additions "    platform::AddFunction(\"${library}\", \"${name}\", ${function});\n")
  endforeach()
  list(REMOVE_DUPLICATES functions)
  list(JOIN functions "();\nvoid " declarations)
  set(table ${CMAKE_CURRENT_BINARY_DIR}/${target}-functions.cpp)
  # Only addresses are taken, so the functions need no types; of the variable only the making counts.
  file(CONFIGURE OUTPUT ${table} CONTENT "#include \"native/PartnerLibraries.h\"\n
extern \"C\"\n{\nvoid ${declarations}();\n}\n
[[maybe_unused]] static const bool areAdded = []\n{\n${additions}    return true;\n}();\n")
  target_sources(${target} PRIVATE ${table})
endfunction()

# lyt_partner_library(NAME SOURCES... FUNCTIONS...) makes a library that a description or the catalogue asks for by name,
# with these functions: a DLL, or natively objects with a table.
function(lyt_partner_library name)
  cmake_parse_arguments(PARSE_ARGV 1 library "" "" "SOURCES;FUNCTIONS")
  if(WIN32)
    add_library(${name} SHARED ${library_SOURCES})
    set_target_properties(${name} PROPERTIES PREFIX "")
  else()
    add_library(${name} OBJECT ${library_SOURCES})
    # For the compiler of Windows a function says that it leaves the library.
    target_compile_options(${name} PRIVATE "-D__declspec(attribute)=")
    target_link_libraries(${name} PRIVATE lyt_windows)
    lyt_function_table(${name} ${name} ${library_FUNCTIONS})
  endif()
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/include)
  target_link_libraries(${name} PRIVATE lyt_options)
endfunction()
