# SPDX-License-Identifier: MIT
# The sibling library as the target tarn_ethsw_mgmt::sibling: what the user has defined as such, or the
# file TARN_SIBLING_LIBRARY, which is looked for by NAME where that is known. Without any of these there
# is no such target; nothing takes its place.
function(tarn_find_sibling name)
    if(TARGET tarn_ethsw_mgmt::sibling)
        return()
    endif()
    if(name AND NOT TARN_SIBLING_LIBRARY)
        find_library(TARN_SIBLING_LIBRARY NAMES ${name} DOC "The sibling library")
    endif()
    if(NOT TARN_SIBLING_LIBRARY)
        return()
    endif()
    if(NOT EXISTS "${TARN_SIBLING_LIBRARY}")
        message(FATAL_ERROR "TARN_SIBLING_LIBRARY: there is no file ${TARN_SIBLING_LIBRARY}")
    endif()
    add_library(tarn_ethsw_mgmt::sibling UNKNOWN IMPORTED GLOBAL)
    set_target_properties(tarn_ethsw_mgmt::sibling PROPERTIES
        IMPORTED_LOCATION "${TARN_SIBLING_LIBRARY}")
endfunction()
