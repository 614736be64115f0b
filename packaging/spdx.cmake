# quillon_write_spdx(FILE NAME PACKAGES...): a bill of materials in SPDX 2.3 (JSON) of the portable folder NAME: the
# program, what is compiled into it, what quillon_append_spdx has added before, and the Debian packages of its libraries,
# as "PACKAGE", or as "PACKAGE=VERSION" if not installed. Licences are from bundled_licences.cmake. Reads
# `QUILLON_WEB_HOST` and `PROJECT_VERSION`, and its time from SOURCE_DATE_EPOCH, so that builds are reproducible.

# Appends a package to the caller's `packages_json` and `relations_json`.
function(quillon_append_spdx NAME VERSION LICENCE RELATION URL)
  string(REGEX REPLACE "[^A-Za-z0-9.-]" "-" id "SPDXRef-${NAME}")
  set(reference "")
  string(REPLACE "+" "%2B" URL "${URL}")
  string(REGEX REPLACE "(@.*):" "\\1%3A" URL "${URL}")
  if(NOT URL STREQUAL "")
    set(reference ",
      \"externalRefs\": [
        {\"referenceCategory\": \"PACKAGE-MANAGER\", \"referenceType\": \"purl\", \"referenceLocator\": \"${URL}\"}
      ]")
  endif()
  list(APPEND packages_json "    {
      \"SPDXID\": \"${id}\",
      \"name\": \"${NAME}\",
      \"versionInfo\": \"${VERSION}\",
      \"downloadLocation\": \"NOASSERTION\",
      \"filesAnalyzed\": false,
      \"licenseConcluded\": \"${LICENCE}\",
      \"licenseDeclared\": \"${LICENCE}\",
      \"copyrightText\": \"NOASSERTION\"${reference}
    }")
  string(REPLACE " " ";" relation "${RELATION} ${id}")
  list(GET relation 0 from)
  list(GET relation 1 kind)
  list(APPEND relations_json
    "    {\"spdxElementId\": \"${from}\", \"relationshipType\": \"${kind}\", \"relatedSpdxElement\": \"${id}\"}")
  set(packages_json "${packages_json}" PARENT_SCOPE)
  set(relations_json "${relations_json}" PARENT_SCOPE)
endfunction()

function(quillon_write_spdx FILE NAME)
  set(httplib ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../third_party/httplib/httplib.h)
  file(STRINGS "${httplib}" httplib_version REGEX "define CPPHTTPLIB_VERSION \"")
  string(REGEX REPLACE ".*\"(.*)\".*" "\\1" httplib_version "${httplib_version}")
  quillon_append_spdx(quillon ${PROJECT_VERSION} MIT "SPDXRef-DOCUMENT DESCRIBES" "")
  quillon_append_spdx(cpp-httplib ${httplib_version} MIT "SPDXRef-quillon CONTAINS" "")
  foreach(compiled_in fonts-liberation2=OFL-1.1 fonts-dejavu-core=Bitstream-Vera fonts-dejavu-extra=Bitstream-Vera
      libcli11-dev=BSD-3-Clause nlohmann-json3-dev=MIT)
    string(REPLACE "=" ";" compiled_in ${compiled_in})
    list(GET compiled_in 0 package)
    list(GET compiled_in 1 licence)
    quillon_debian_version(${package} version)
    quillon_append_spdx(${package} ${version} ${licence} "SPDXRef-quillon CONTAINS" "pkg:deb/debian/${package}@${version}")
  endforeach()
  foreach(package IN LISTS ARGN)
    if(package MATCHES "^(.*)=(.*)$")
      set(package ${CMAKE_MATCH_1})
      set(version ${CMAKE_MATCH_2})
    else()
      quillon_debian_version(${package} version)
    endif()
    if(NOT DEFINED licence_of_${package})
      message(FATAL_ERROR "bundled_licences.cmake has no licence of ${package}")
    endif()
    quillon_append_spdx(${package} ${version} "${licence_of_${package}}" "SPDXRef-quillon DEPENDS_ON"
      "pkg:deb/debian/${package}@${version}")
  endforeach()
  list(JOIN packages_json ",\n" packages_json)
  list(JOIN relations_json ",\n" relations_json)
  string(TIMESTAMP now "%Y-%m-%dT%H:%M:%SZ" UTC)
  file(WRITE "${FILE}" "{
  \"spdxVersion\": \"SPDX-2.3\",
  \"dataLicense\": \"CC0-1.0\",
  \"SPDXID\": \"SPDXRef-DOCUMENT\",
  \"name\": \"${NAME}\",
  \"documentNamespace\": \"https://${QUILLON_WEB_HOST}/quillon/spdx/${NAME}\",
  \"creationInfo\": {\"created\": \"${now}\", \"creators\": [\"Organization: The Quillon developers\"]},
  \"hasExtractedLicensingInfos\": [
    {\"licenseId\": \"LicenseRef-public-domain\", \"extractedText\": \"In the public domain.\"}
  ],
  \"packages\": [
${packages_json}
  ],
  \"relationships\": [
${relations_json}
  ]
}
")
  file(READ "${FILE}" written)
  string(JSON packages LENGTH "${written}" packages) # fails if it is not JSON
endfunction()

# The version of an installed Debian package.
function(quillon_debian_version PACKAGE RESULT)
  execute_process(COMMAND dpkg-query --show --showformat=\${Version} ${PACKAGE}
    OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
  set(${RESULT} ${version} PARENT_SCOPE)
endfunction()
