# Lists what was installed: what it is made of, and its checksums.
set(folder $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX})
execute_process(COMMAND ${lyt_make_sums} ${folder} ${lyt_version} COMMAND_ERROR_IS_FATAL ANY)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES ${CMAKE_INSTALL_PREFIX}/lyt64.cdx.json ${CMAKE_INSTALL_PREFIX}/SHA256SUMS)
