# What a folder that runs from anywhere owes to the Debian packages whose files it carries.
#
# quillon_append_package_of(PACKAGES FILE): appends to the list the package that FILE is of.
# quillon_copy_licences(ROOT COPYRIGHTS...): copies these files, "PACKAGE=FILE", to "licences/PACKAGE", and beside them the
# licences that they refer to.
function(quillon_append_package_of PACKAGES FILE)
  # A merged /usr gives a file two names, of which the package list knows one.
  file(REAL_PATH "${FILE}" real)
  string(REGEX REPLACE "^/usr/" "/" short "${real}")
  execute_process(COMMAND dpkg-query --search "${real}" "${short}" OUTPUT_VARIABLE owners ERROR_QUIET)
  if(NOT owners MATCHES "^([^:,\n]+)")
    message(FATAL_ERROR "${real} is of no package")
  endif()
  set(${PACKAGES} ${${PACKAGES}} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()

function(quillon_copy_licences ROOT)
  set(referred "")
  foreach(copyright IN LISTS ARGN)
    string(REGEX MATCH "^(.*)=(.*)$" matched "${copyright}")
    file(REAL_PATH "${CMAKE_MATCH_2}" file)
    file(INSTALL "${file}" DESTINATION "${ROOT}/licences" RENAME "${CMAKE_MATCH_1}" MESSAGE_NEVER)
    file(READ "${file}" text)
    string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z0-9]+(-[0-9]+([.][0-9]+)?)?" names "${text}")
    list(APPEND referred ${names})
  endforeach()
  list(REMOVE_DUPLICATES referred)
  file(INSTALL ${referred} DESTINATION "${ROOT}/licences" MESSAGE_NEVER FOLLOW_SYMLINK_CHAIN)
endfunction()
