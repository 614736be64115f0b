# Run as a script: converts DOCS/user-guide.md to GUIDE/user-guide.html with CMARK, and copies the pictures.
execute_process(COMMAND ${CMARK} --to html --extension table ${DOCS}/user-guide.md
  OUTPUT_VARIABLE BODY COMMAND_ERROR_IS_FATAL ANY)
configure_file(${DOCS}/user-guide.html.in ${GUIDE}/user-guide.html @ONLY)
file(COPY ${DOCS}/screens DESTINATION ${GUIDE})
