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
