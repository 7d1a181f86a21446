# Run by cpack for the .tar.gz. Its own way would write down who has built it.
set(name ${CPACK_PACKAGE_FILE_NAME})
get_filename_component(staged ${CPACK_TEMPORARY_DIRECTORY} ABSOLUTE)
execute_process(
  COMMAND tar --create --sort=name --owner=0 --group=0 --numeric-owner --mtime=@${CPACK_TALVERO_SOURCE_DATE}
          --format=gnu --transform=s,^[.],${name}, --directory=${staged} .
  COMMAND gzip -9n
  OUTPUT_FILE ${CPACK_PACKAGE_DIRECTORY}/${name}.tar.gz
  COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${CPACK_PACKAGE_DIRECTORY}/${name}.tar.gz)
