# Packs the portable folder that CPack has assembled. CPack's own archives depend on the file system's order and on build
# times; this one is reproducible.
set(archive "${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.tar.xz")
execute_process(
  COMMAND tar --sort=name --owner=0 --group=0 --numeric-owner --mode=u=rwX,go=rX "--mtime=@$ENV{SOURCE_DATE_EPOCH}"
    "--transform=flags=r;s,^[.],${CPACK_PACKAGE_FILE_NAME}," --format=gnu -c .
  COMMAND xz -9 -T1
  OUTPUT_FILE "${archive}"
  WORKING_DIRECTORY "${CPACK_TEMPORARY_DIRECTORY}"
  COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES "${archive}")
