# The Debian packages, one per component:
#   libzeplet1     runtime      what a panel needs
#   libzeplet-dev  development  what a plugin is built with
#   zeplet-kit     kit          what its author works with
# script/packages makes them. They go to /usr, where the linker finds libraries by itself.
include(ZepletDebian)

set(ZEPLET_HOST_DEV_PACKAGE "" CACHE STRING
    "Debian package of the headers and the CMake package that ZEPLET_HOST names")
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr" OR NOT CMAKE_SKIP_INSTALL_RPATH)
    message(FATAL_ERROR "Packages are made with the preset 'package': prefix /usr, no RPATH")
endif()

zeplet_debian_cpack()
zeplet_debian_maintainer(CPACK_PACKAGE_CONTACT "Zeplet developers" zeplet@example.org)
set(version ${PROJECT_VERSION}-1)
set(packages libzeplet${PROJECT_VERSION_MAJOR} libzeplet-dev zeplet-kit)
set(components runtime development kit)
if(ZEPLET_HOST)
    list(REMOVE_AT packages 2)
    list(REMOVE_AT components 2)
endif()
set(runtime libzeplet${PROJECT_VERSION_MAJOR})

set(CPACK_PACKAGE_NAME zeplet)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/build/packages)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE zeplet)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_ZEPLET_MULTI_ARCH "${runtime}=same;libzeplet-dev=same")

foreach(package component IN ZIP_LISTS packages components)
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${package})
    file(READ ${PROJECT_SOURCE_DIR}/packaging/${component}.txt CPACK_COMPONENT_${key}_DESCRIPTION)
    zeplet_debian_documents(${package} ${version} "${CPACK_PACKAGE_CONTACT}"
                            ${PROJECT_SOURCE_DIR}/packaging/copyright ${component})
endforeach()

# What dpkg-shlibdeps writes for each library that a plugin or a panel links.
zeplet_debian_range(range ${runtime} ${PROJECT_VERSION})
set(shlibs "libzeplet ${PROJECT_VERSION_MAJOR} ${range}\n")
if(NOT ZEPLET_HOST)
    string(APPEND shlibs "libzeplet-host ${PROJECT_VERSION_MAJOR} ${range}\n")
endif()
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs "${shlibs}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/shlibs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS rsync) # the sync tool runs it

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${version}), python3:any, qtbase5-dev")
if(ZEPLET_HOST_DEV_PACKAGE)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", ${ZEPLET_HOST_DEV_PACKAGE}")
endif()
install(FILES ${PROJECT_SOURCE_DIR}/docs/host-contract.md
        DESTINATION share/doc/libzeplet-dev COMPONENT development)

# What builds, runs and packs a plugin on a machine with nothing else.
set(CPACK_DEBIAN_KIT_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_KIT_PACKAGE_DEPENDS
    "${runtime} (= ${version})" "libzeplet-dev (= ${version})" "cmake (>= 3.25)" dpkg-dev file
    fonts-dejavu-core g++ ninja-build python3:any qttools5-dev-tools rsync socat)
list(JOIN CPACK_DEBIAN_KIT_PACKAGE_DEPENDS ", " CPACK_DEBIAN_KIT_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_KIT_PACKAGE_RECOMMENDS "fonts-droid-fallback, lintian, qttranslations5-l10n")
set(CPACK_DEBIAN_KIT_PACKAGE_SUGGESTS "crossbuild-essential-arm64")

file(GLOB pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/man/*.1)
foreach(page IN LISTS pages)
    get_filename_component(name ${page} NAME)
    zeplet_install_compressed(${page} ${name} share/man/man1 kit)
endforeach()
zeplet_install_compressed(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog share/doc/zeplet-kit kit)

include(CPack)
