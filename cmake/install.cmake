# SPDX-License-Identifier: MIT
# What `cmake --install` puts where, in GNU directories below any prefix; nothing of it holds a path.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A folder of its own, which users have on their include path: "ethsw_mgmt/switch.h" stays what it is.
set(TARN_INSTALL_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/tarn_ethsw_mgmt)
set(TARN_INSTALL_SCHEMA ${CMAKE_INSTALL_DATADIR}/tarn_ethsw_mgmt)
set(TARN_INSTALL_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/tarn_ethsw_mgmt)
set(TARN_INSTALL_PKGCONFIG ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS tarn_ethsw_mgmt tarn_ethsw_mgmt_static tarn_ethsw_mgmt_headers
    EXPORT tarn_ethsw_mgmtTargets
    INCLUDES DESTINATION ${TARN_INSTALL_HEADERS})
install(EXPORT tarn_ethsw_mgmtTargets NAMESPACE tarn_ethsw_mgmt::
    DESTINATION ${TARN_INSTALL_CMAKE})

foreach(folder wire runtime foreign ethsw_mgmt)
    install(DIRECTORY ${folder}/ DESTINATION ${TARN_INSTALL_HEADERS}/${folder}
        FILES_MATCHING PATTERN "*.h")
endforeach()
install(DIRECTORY cxx/ DESTINATION ${TARN_INSTALL_HEADERS}/cxx FILES_MATCHING PATTERN "*.hpp")
foreach(folder foreign ethsw_mgmt)
    install(DIRECTORY ${folder}/ DESTINATION ${TARN_INSTALL_SCHEMA}/${folder}
        FILES_MATCHING PATTERN "*.proto")
endforeach()
install(FILES README.md CHANGELOG.md SECURITY.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs
    FILES_MATCHING PATTERN "*.md" PATTERN "*.svg")

include(cmake/bill.cmake)
install(FILES ${PROJECT_BINARY_DIR}/ethsw_mgmt.spdx.json DESTINATION ${TARN_INSTALL_SCHEMA})

# A real sibling library that was given here is looked for by its name where this one is used.
set(TARN_SIBLING_NAME "")
set(TARN_PC_SIBLING "")
if(TARN_SIBLING_LIBRARY)
    get_filename_component(TARN_SIBLING_NAME "${TARN_SIBLING_LIBRARY}" NAME)
    set(TARN_PC_SIBLING -l:${TARN_SIBLING_NAME})
endif()

configure_package_config_file(cmake/tarn_ethsw_mgmtConfig.cmake.in
    ${PROJECT_BINARY_DIR}/tarn_ethsw_mgmtConfig.cmake
    INSTALL_DESTINATION ${TARN_INSTALL_CMAKE} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tarn_ethsw_mgmtConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tarn_ethsw_mgmtConfig.cmake
    ${PROJECT_BINARY_DIR}/tarn_ethsw_mgmtConfigVersion.cmake cmake/sibling.cmake
    DESTINATION ${TARN_INSTALL_CMAKE})

# tarn_install_module(SUFFIX LIBRARY): a module of pkg-config.
function(tarn_install_module TARN_PC_SUFFIX TARN_PC_LIBRARY)
    string(REGEX REPLACE "[^/]+" ".." TARN_PREFIX_FROM_PKGCONFIG ${TARN_INSTALL_PKGCONFIG})
    set(module ${PROJECT_BINARY_DIR}/tarn_ethsw_mgmt${TARN_PC_SUFFIX}.pc)
    configure_file(cmake/tarn_ethsw_mgmt.pc.in ${module} @ONLY)
    install(FILES ${module} DESTINATION ${TARN_INSTALL_PKGCONFIG})
endfunction()
tarn_install_module("" -ltarn_ethsw_mgmt)
tarn_install_module(-static -l:libtarn_ethsw_mgmt.a)

if(TARN_BUILD_TOOLS)
    install(TARGETS ethsw-inspect)
    install(FILES tools/ethsw-inspect.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    set(completion tools/completion)
    install(FILES ${completion}/ethsw-inspect.bash RENAME ethsw-inspect
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES ${completion}/_ethsw-inspect
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
    install(FILES ${completion}/ethsw-inspect.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()
