# Run by cpack before it packs: every file and folder gets the same time, whenever it was built.
execute_process(
  COMMAND find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -exec touch --no-dereference --date=@${CPACK_TALVERO_SOURCE_DATE} {} +
  COMMAND_ERROR_IS_FATAL ANY)
