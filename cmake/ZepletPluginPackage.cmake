# The Debian package of a plugin's project, zeplet-plugin-NAME_VERSION_ARCHITECTURE.deb: what the
# project installs, with a copyright, a changelog and the dependencies that its libraries show. NAME
# is the plugin's, or the project's where it has several.
#
# find_package(Zeplet) reads this file where ZEPLET_PACKAGES is on, as "zeplet pack" asks; a project
# needs no line for it. One that calls include(CPack) itself packs as it says there.
include(${CMAKE_CURRENT_LIST_DIR}/ZepletDebian.cmake)

# Kept for the end of the project's own file, whichever folder finds the library.
get_filename_component(libraries ${CMAKE_CURRENT_LIST_DIR}/../.. ABSOLUTE)
set(ZEPLET_PACKAGE_LIBRARIES ${libraries} CACHE INTERNAL "Where the library is")
set(ZEPLET_PACKAGE_LIBRARY_VERSION ${Zeplet_VERSION} CACHE INTERNAL "Its version")

if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    message(FATAL_ERROR "Packages are made by 'zeplet pack', which chooses their directories")
endif()

# At the end of the project's own file everything is known.
get_property(deferred GLOBAL PROPERTY ZEPLET_PACKAGE_DEFERRED)
if(NOT deferred)
    set_property(GLOBAL PROPERTY ZEPLET_PACKAGE_DEFERRED ON)
    cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL zeplet_package_project)
endif()

macro(zeplet_package_project)
    get_property(plugins GLOBAL PROPERTY ZEPLET_PLUGINS)
    if(plugins AND NOT CPack_CMake_INCLUDED)
        zeplet_set_package()
        include(CPack)
    endif()
endmacro()

macro(zeplet_set_package)
    if(NOT CMAKE_PROJECT_VERSION)
        message(FATAL_ERROR "The package's version is missing: write "
                            "project(${CMAKE_PROJECT_NAME} VERSION 1.0.0 LANGUAGES CXX)")
    endif()
    set(name ${CMAKE_PROJECT_NAME})
    list(LENGTH plugins count)
    if(count EQUAL 1)
        set(name ${plugins})
    endif()
    zeplet_package_name(package ${name})
    zeplet_debian_cpack()
    if(NOT CPACK_PACKAGE_CONTACT)
        zeplet_debian_maintainer(CPACK_PACKAGE_CONTACT "The authors of ${name}" ${package}@example.org)
    endif()
    set(CPACK_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_PACKAGE_NAME ${package})
    set(CPACK_PACKAGE_VERSION ${CMAKE_PROJECT_VERSION})
    set(CPACK_DEBIAN_PACKAGE_SECTION misc)
    zeplet_package_description(${name})
    zeplet_package_library()
    zeplet_package_copyright(copyright ${name})
    zeplet_debian_documents(${package} ${CMAKE_PROJECT_VERSION} "${CPACK_PACKAGE_CONTACT}"
                            ${copyright} plugin)
endmacro()

# Debian's names are of lower case, digits, "+", "-" and ".".
function(zeplet_package_name variable name)
    string(TOLOWER ${name} name)
    string(REGEX REPLACE "[^a-z0-9.+]+" "-" name ${name})
    set(${variable} zeplet-plugin-${name} PARENT_SCOPE)
endfunction()

# The first line is the project's DESCRIPTION where it fits on one.
macro(zeplet_package_description name)
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "plugin ${name} for robot operator panels")
    string(LENGTH "${CMAKE_PROJECT_DESCRIPTION}" length)
    if(length GREATER 0 AND length LESS 80 AND NOT CMAKE_PROJECT_DESCRIPTION MATCHES "\n")
        set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${CMAKE_PROJECT_DESCRIPTION})
    endif()
    set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
        " An operator panel that has this package loads the plugin ${name}\n at its next start.\n")
endmacro()

# dpkg-shlibdeps knows what package the library is from. One that comes from no package is found
# in its directory, and a panel's package is asked for all the same.
macro(zeplet_package_library)
    string(REGEX MATCH "^[0-9]+" major ${ZEPLET_PACKAGE_LIBRARY_VERSION})
    execute_process(COMMAND dpkg-query -S ${ZEPLET_PACKAGE_LIBRARIES}/libzeplet.so.${major}
                    RESULT_VARIABLE unknown OUTPUT_QUIET ERROR_QUIET)
    if(unknown)
        set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${ZEPLET_PACKAGE_LIBRARIES})
        zeplet_debian_range(CPACK_DEBIAN_PACKAGE_DEPENDS libzeplet${major}
                            ${ZEPLET_PACKAGE_LIBRARY_VERSION})
    endif()
endmacro()

# The project's own debian/copyright, or else one made of its licence. Debian's packages don't repeat
# a licence that every machine has, but name it.
function(zeplet_package_copyright variable name)
    set(file ${CMAKE_SOURCE_DIR}/debian/copyright)
    if(NOT EXISTS ${file})
        string(TIMESTAMP year %Y UTC)
        set(file ${CMAKE_BINARY_DIR}/debian/copyright)
        zeplet_package_licence(licence)
        file(WRITE ${file} "${name} ${CMAKE_PROJECT_VERSION}\n\n"
                           "Copyright ${year} the authors of ${name}\n\n${licence}\n")
    endif()
    set(${variable} ${file} PARENT_SCOPE)
endfunction()

function(zeplet_package_licence variable)
    file(GLOB files ${CMAKE_SOURCE_DIR}/LICEN[CS]E* ${CMAKE_SOURCE_DIR}/COPYING*)
    if(NOT files)
        set(${variable} "All rights are reserved; the source names no licence." PARENT_SCOPE)
        return()
    endif()
    list(GET files 0 file)
    file(READ ${file} text)
    foreach(known IN ITEMS "Apache License.*Version 2.0=Apache-2.0"
                           "GNU LESSER GENERAL PUBLIC LICENSE.*Version 3=LGPL-3"
                           "GNU LESSER GENERAL PUBLIC LICENSE.*Version 2.1=LGPL-2.1"
                           "GNU GENERAL PUBLIC LICENSE.*Version 3=GPL-3"
                           "GNU GENERAL PUBLIC LICENSE.*Version 2=GPL-2"
                           "Mozilla Public License.*2.0=MPL-2.0")
        string(REGEX MATCH "^(.*)=(.*)$" known ${known})
        if(text MATCHES "${CMAKE_MATCH_1}")
            string(REGEX REPLACE "^.*=" "" common ${known})
            set(text "The licence is ${common}; its text is in /usr/share/common-licenses/${common}.")
            break()
        endif()
    endforeach()
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()
