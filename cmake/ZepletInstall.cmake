# What an installation holds: the library, its headers and package, and the reference host's where
# this build made one. Private headers (*_p.h) stay here.
include(CMakePackageConfigHelpers)

set(ZEPLET_HOST_PACKAGE ZepletHost)
if(ZEPLET_HOST)
    set(ZEPLET_HOST_PACKAGE ${ZEPLET_HOST})
endif()

# The library of a target with its public headers, and the package that finds them.
function(zeplet_install_package package target)
    cmake_parse_arguments(ARG "" "HEADERS;INTO" "EXCEPT" ${ARGN})
    set(directory ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
    install(TARGETS ${target} EXPORT ${package}Targets)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${ARG_HEADERS}/
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ARG_INTO}
            FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE ${ARG_EXCEPT})
    install(EXPORT ${package}Targets NAMESPACE Zeplet:: FILE ${package}Targets-export.cmake
            DESTINATION ${directory})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in
        ${PROJECT_BINARY_DIR}/${package}Config.cmake INSTALL_DESTINATION ${directory})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/${package}Config.cmake
                  ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake DESTINATION ${directory})
endfunction()

zeplet_install_package(Zeplet zeplet HEADERS src INTO zeplet)
# The plugin function and everything beside it that it needs.
file(GLOB plugin_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/ZepletPlugin*)
install(FILES ${plugin_files} DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Zeplet)

if(ZEPLET_HOST)
    return()
endif()

zeplet_install_package(ZepletHost zeplet_host HEADERS host INTO zeplet-host
                       EXCEPT PATTERN link EXCLUDE)

# The panel and the simulator, where they are built.
foreach(program zeplet-panel zeplet-simulator)
    if(TARGET ${program})
        install(TARGETS ${program})
    endif()
endforeach()
