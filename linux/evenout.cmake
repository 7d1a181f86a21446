# Run by cpack before it packs: whoever has built it, and whenever, every folder can be read by all, and every file and
# folder gets the same time.
execute_process(COMMAND find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -type d -exec chmod 755 {} +
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -exec touch --no-dereference --date=@${CPACK_TALVERO_SOURCE_DATE} {} +
  COMMAND_ERROR_IS_FATAL ANY)
