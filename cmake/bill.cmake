# SPDX-License-Identifier: MIT
# The bill of materials: what is in what is installed, in the form of SPDX. The library has nothing but
# its own code; the inspector has headers of others compiled in, whose versions these headers tell.

# tarn_header_version(RESULT FILE NAME): the version that NAME_MAJOR, _MINOR and _PATCH define there.
function(tarn_header_version result file name)
    set(version "")
    foreach(part MAJOR MINOR PATCH)
        file(STRINGS ${file} line REGEX "#define ${name}_${part} ")
        string(REGEX REPLACE ".*_${part} +([0-9]+).*" "\\1" number "${line}")
        list(APPEND version ${number})
    endforeach()
    list(JOIN version . version)
    set(${result} ${version} PARENT_SCOPE)
endfunction()

# tarn_add_to_bill(ID NAME VERSION LICENCE WHOLE RELATION): a package, and how the whole relates to it.
function(tarn_add_to_bill id name version licence whole relation)
    string(APPEND TARN_BILL_PACKAGES ",
    {
      \"SPDXID\": \"SPDXRef-${id}\",
      \"name\": \"${name}\",
      \"versionInfo\": \"${version}\",
      \"downloadLocation\": \"NOASSERTION\",
      \"filesAnalyzed\": false,
      \"licenseConcluded\": \"${licence}\",
      \"licenseDeclared\": \"${licence}\",
      \"copyrightText\": \"NOASSERTION\"
    }")
    string(APPEND TARN_BILL_RELATIONS ",
    {
      \"spdxElementId\": \"SPDXRef-${whole}\",
      \"relationshipType\": \"${relation}\",
      \"relatedSpdxElement\": \"SPDXRef-${id}\"
    }")
    set(TARN_BILL_PACKAGES ${TARN_BILL_PACKAGES} PARENT_SCOPE)
    set(TARN_BILL_RELATIONS ${TARN_BILL_RELATIONS} PARENT_SCOPE)
endfunction()

# When it was made: a build that can be made again must not say when it was.
set(TARN_BILL_CREATED "$ENV{SOURCE_DATE_EPOCH}")
if(TARN_BILL_CREATED STREQUAL "")
    execute_process(COMMAND git log -1 --format=%ct WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        OUTPUT_VARIABLE TARN_BILL_CREATED OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(TARN_BILL_CREATED STREQUAL "")
    set(TARN_BILL_CREATED 0)
endif()
set(ENV{SOURCE_DATE_EPOCH} ${TARN_BILL_CREATED})
string(TIMESTAMP TARN_BILL_CREATED "%Y-%m-%dT%H:%M:%SZ" UTC)
unset(ENV{SOURCE_DATE_EPOCH})

tarn_add_to_bill(sibling "sibling interface library" "" NOASSERTION library DYNAMIC_LINK)
tarn_add_to_bill(libc "C library" "" NOASSERTION library DYNAMIC_LINK)
if(TARN_BUILD_TOOLS)
    tarn_add_to_bill(inspector ethsw-inspect ${PROJECT_VERSION} MIT library DEPENDENCY_OF)
    file(STRINGS ${TARN_FMT_INCLUDE}/fmt/core.h line REGEX "#define FMT_VERSION [0-9]+")
    string(REGEX MATCH "[0-9]+$" number "${line}")
    math(EXPR major "${number} / 10000")
    math(EXPR minor "${number} / 100 % 100")
    math(EXPR patch "${number} % 100")
    tarn_add_to_bill(fmt "{fmt}" ${major}.${minor}.${patch} MIT inspector CONTAINS)
    tarn_header_version(version ${TARN_JSON_INCLUDE}/nlohmann/detail/abi_macros.hpp
        NLOHMANN_JSON_VERSION)
    tarn_add_to_bill(json "JSON for Modern C++" "${version}" MIT inspector CONTAINS)
    tarn_header_version(version ${TARN_CLI11_INCLUDE}/CLI/Version.hpp CLI11_VERSION)
    tarn_add_to_bill(cli11 CLI11 "${version}" BSD-3-Clause inspector CONTAINS)
endif()
configure_file(cmake/bill.spdx.json.in ethsw_mgmt.spdx.json @ONLY)
