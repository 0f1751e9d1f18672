# Run by cpack when the files are laid out: makes the zip.
set(zip ${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.zip)
execute_process(
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/../scripts/make-zip ${CPACK_TEMPORARY_DIRECTORY} ${zip}
  COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${zip})
