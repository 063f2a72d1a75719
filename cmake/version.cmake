# SPDX-License-Identifier: MIT
# Reads the version from the header that tells it to programs, so that it stands in one place.
function(tarn_read_version result)
    set(header ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../ethsw_mgmt/version.h)
    set(parts "")
    foreach(part MAJOR MINOR PATCH)
        file(STRINGS ${header} line REGEX "^#define TARN_ETHSW_MGMT_VERSION_${part} [0-9]+$")
        string(REGEX MATCH "[0-9]+$" number "${line}")
        list(APPEND parts ${number})
    endforeach()
    list(JOIN parts . version)
    set(${result} ${version} PARENT_SCOPE)
endfunction()
