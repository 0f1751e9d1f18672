# lyt_version_record(TARGET FILE DESCRIPTION) gives a program or library for Windows its version record. The version is that
# of the project.
function(lyt_version_record target file description)
  set(type VFT_APP)
  if(file MATCHES "dll$")
    set(type VFT_DLL)
  endif()
  string(REPLACE "." "," numbers "${PROJECT_VERSION}.0")
  set(record ${CMAKE_CURRENT_BINARY_DIR}/${target}-version.rc)
  configure_file(${CMAKE_SOURCE_DIR}/src/res/version.rc.in ${record} @ONLY)
  target_sources(${target} PRIVATE ${record})
endfunction()

# lyt_resources(TARGET SCOPE) gives a program or library for Windows the resources of the library, with its manifest: PRIVATE for
# itself, INTERFACE for those that link it. The version in the manifest is the project's, too.
function(lyt_resources target scope)
  set(manifest ${CMAKE_BINARY_DIR}/resources/lyt64.manifest)
  configure_file(${CMAKE_SOURCE_DIR}/src/res/lyt64.manifest.in ${manifest} @ONLY)
  set(script ${CMAKE_SOURCE_DIR}/src/res/lyt64.rc)
  file(GLOB icons ${CMAKE_SOURCE_DIR}/src/res/icons/*.ico)
  set_property(SOURCE ${script} APPEND PROPERTY OBJECT_DEPENDS ${manifest} ${icons})
  target_sources(${target} ${scope} ${script})
  target_include_directories(${target} ${scope} ${CMAKE_BINARY_DIR}/resources)
endfunction()
