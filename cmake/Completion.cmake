# Completes what was installed: the pages as HTML, what the files are made of, and their checksums.
set(folder $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX})
execute_process(COMMAND ${lyt_scripts}/make-html ${folder} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${lyt_scripts}/make-sums ${folder} ${lyt_version} COMMAND_ERROR_IS_FATAL ANY)
