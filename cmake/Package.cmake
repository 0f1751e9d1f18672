# What is handed out: a folder by `cmake --install`, a zip by `cpack --config CPackConfig.cmake`. Build the target
# package-files first. The same sources give the same bytes.
add_custom_target(package-files DEPENDS lyt64 lytcall lytdlg lytdata lytsrc)
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

# The tools look for the library and the samples beside themselves.
install(PROGRAMS
  $<TARGET_FILE:lyt64> $<TARGET_FILE:lytcall> $<TARGET_FILE:lytdlg> $<TARGET_FILE:lytdata> $<TARGET_FILE:lytsrc>
  DESTINATION .)
install(FILES samples/lytdata/lytdata.txt samples/lytsrc/lytsrc.txt DESTINATION .)
install(FILES host/lyt64.bas DESTINATION host)
install(FILES include/lyt64.h include/lytdata.h include/lytsrc.h DESTINATION include)
install(DIRECTORY
  samples/dialogs samples/init samples/cases samples/scripts samples/lytdata samples/lytsrc samples/partners
  DESTINATION samples
  PATTERN CMakeLists.txt EXCLUDE)

install(FILES $<TARGET_LINKER_FILE:lyt64> DESTINATION lib)
if(LYT_IMPORT_LIBRARY)
  add_dependencies(package-files lyt64-import-library)
  install(FILES ${LYT_IMPORT_LIBRARY} DESTINATION lib)
else()
  install(CODE [[message(FATAL_ERROR "lyt64.lib is missing: install the package llvm, configure and build again")]])
endif()

# Pages for those who use the library. What is not handed out cannot be linked to.
set(lyt_not_handed_out "\\.\\./tests/[^)\n]*|(architecture|benchmarks|contributing|reliability|selftest)\\.md")
foreach(page
    README accessibility acts deployment descriptions editors exports first-dialog from-other-languages glossary limits lytcall lytdlg
    lytdlg-rules macros partners report support symptoms versions workbench)
  set(source ${CMAKE_SOURCE_DIR}/docs/${page}.md)
  file(READ ${source} text)
  string(REGEX REPLACE "\\[([^]\n]*)\\]\\((${lyt_not_handed_out})\\)" "\\1" text "${text}")
  file(WRITE ${CMAKE_BINARY_DIR}/package/docs/${page}.md "${text}")
  install(FILES ${CMAKE_BINARY_DIR}/package/docs/${page}.md DESTINATION docs)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
endforeach()
install(FILES
  docs/catalogue-96.png docs/form-120.png docs/preview-form.svg docs/preview-symbol.svg docs/window-symbol.png
  docs/workbench.png
  DESTINATION docs)
configure_file(docs/package.md.in ${CMAKE_BINARY_DIR}/package/README.md @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/package/README.md CHANGELOG.md LICENSE SECURITY.md DESTINATION .)
# The page of the workbench is made by tools that nothing else needs. The environment names it when a package is made.
install(CODE [[
if(DEFINED ENV{LYT_WORKBENCH})
  file(INSTALL DESTINATION "${CMAKE_INSTALL_PREFIX}" TYPE FILE FILES "$ENV{LYT_WORKBENCH}")
endif()]])
# The terms of what is inside our programs, as the packages bring them that it was taken from.
set(LYT_TERMS /usr/share/doc CACHE PATH "The folder with a file PACKAGE/copyright for each")
foreach(package gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev nlohmann-json3-dev)
  install(FILES ${LYT_TERMS}/${package}/copyright DESTINATION licences RENAME ${package}.txt)
endforeach()

install(CODE "set(lyt_scripts \"${CMAKE_SOURCE_DIR}/scripts\")\nset(lyt_version ${PROJECT_VERSION})")
install(SCRIPT cmake/Completion.cmake)

# The generator for zips takes the files in the order in which the file system tells them, and notes who owns them, so that
# a script of ours makes the zip.
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${CMAKE_SOURCE_DIR}/cmake/Zip.cmake)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
