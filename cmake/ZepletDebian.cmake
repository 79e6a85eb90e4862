# What every Debian package shares that is made here, and that an author makes of a plugin: its
# architecture, its maintainer, the documents that each package must have, and how cpack makes it.

# The directories' names that Debian gives to what the compiler builds for, and the architecture.
function(zeplet_debian_architecture variable)
    execute_process(
        COMMAND dpkg-architecture --force -t ${CMAKE_LIBRARY_ARCHITECTURE} -q DEB_HOST_ARCH
        OUTPUT_VARIABLE architecture OUTPUT_STRIP_TRAILING_WHITESPACE
        ERROR_VARIABLE problem RESULT_VARIABLE failed)
    if(failed)
        message(FATAL_ERROR "What Debian calls '${CMAKE_LIBRARY_ARCHITECTURE}' is not known; "
                            "dpkg-architecture (package dpkg-dev) says: ${problem}")
    endif()
    set(${variable} ${architecture} PARENT_SCOPE)
endfunction()

# Whoever packages says who they are as with Debian's own tools: DEBFULLNAME and DEBEMAIL.
function(zeplet_debian_maintainer variable name address)
    if(NOT "$ENV{DEBFULLNAME}" STREQUAL "")
        set(name $ENV{DEBFULLNAME})
    endif()
    if(NOT "$ENV{DEBEMAIL}" STREQUAL "")
        set(address $ENV{DEBEMAIL})
    endif()
    set(${variable} "${name} <${address}>" PARENT_SCOPE)
endfunction()

# A panel takes plugins that were built against its own minor version, or an earlier correction of
# it: what depends on the library's package depends on just these.
function(zeplet_debian_range variable package version)
    string(REGEX MATCH "^([0-9]+)\\.([0-9]+)" minor ${version})
    math(EXPR next "${CMAKE_MATCH_2} + 1")
    set(${variable} "${package} (>= ${version}), ${package} (<< ${CMAKE_MATCH_1}.${next}~)"
        PARENT_SCOPE)
endfunction()

# Installs the file as name.gz, the same for the same content.
function(zeplet_install_compressed file name destination component)
    set(compressed ${CMAKE_BINARY_DIR}/debian/${component}/${name}.gz)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/debian/${component})
    execute_process(COMMAND gzip -9nc ${file} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${compressed} DESTINATION ${destination} COMPONENT ${component})
endfunction()

# Installs the package's copyright and a changelog of its own, whose day is SOURCE_DATE_EPOCH's where
# that is set.
function(zeplet_debian_documents package version maintainer copyright component)
    set(directory ${CMAKE_BINARY_DIR}/debian/${component})
    # A version without a revision is Debian's own way of saying that there is one changelog only.
    set(name changelog)
    if(version MATCHES "-")
        set(name changelog.Debian)
    endif()
    string(TIMESTAMP day "%a, %d %b %Y %H:%M:%S +0000" UTC)
    file(WRITE ${directory}/${name} "${package} (${version}) unstable; urgency=medium\n\n"
                                    "  * Version ${version}.\n\n -- ${maintainer}  ${day}\n")
    set(into share/doc/${package})
    zeplet_install_compressed(${directory}/${name} ${name} ${into} ${component})
    install(FILES ${copyright} RENAME copyright DESTINATION ${into} COMPONENT ${component})
endfunction()

# What cpack has to know for each package; a macro, because include(CPack) reads variables.
macro(zeplet_debian_cpack)
    zeplet_debian_architecture(CPACK_DEBIAN_PACKAGE_ARCHITECTURE)
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_STRIP_FILES ON)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
    set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    set(CPACK_PROJECT_CONFIG_FILE ${ZEPLET_DEBIAN_MODULE_DIR}/ZepletDebianHost.cmake)
    set(CPACK_POST_BUILD_SCRIPTS ${ZEPLET_DEBIAN_MODULE_DIR}/ZepletDebianFinish.cmake)
endmacro()

set(ZEPLET_DEBIAN_MODULE_DIR ${CMAKE_CURRENT_LIST_DIR} CACHE INTERNAL "Where this file is")
