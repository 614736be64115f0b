# Licences of the Debian packages whose files a portable folder contains.
#
# quillon_append_package_of(PACKAGES FILE): appends the package of FILE to the list.
# quillon_copy_licences(ROOT COPYRIGHTS...): copies these files, "PACKAGE=FILE", to "licences/PACKAGE", with the licences
# that they refer to.
function(quillon_append_package_of PACKAGES FILE)
  # With a merged /usr a file has two names, only one of which is in the package list.
  file(REAL_PATH "${FILE}" real)
  string(REGEX REPLACE "^/usr/" "/" short "${real}")
  execute_process(COMMAND dpkg-query --search "${real}" "${short}" OUTPUT_VARIABLE owners ERROR_QUIET)
  if(NOT owners MATCHES "^([^:,\n]+)")
    message(FATAL_ERROR "${real} belongs to no package")
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
