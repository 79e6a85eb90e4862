# What an installation holds: the library, its headers and package, and the reference host's where
# this build made one. Private headers (*_p.h) stay here.
include(CMakePackageConfigHelpers)

set(ZEPLET_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Zeplet)
set(ZEPLET_HOST_PACKAGE ZepletHost)
if(ZEPLET_HOST)
    set(ZEPLET_HOST_PACKAGE ${ZEPLET_HOST})
endif()

install(TARGETS zeplet EXPORT ZepletTargets)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zeplet
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
install(EXPORT ZepletTargets NAMESPACE Zeplet:: FILE ZepletTargets-export.cmake
        DESTINATION ${ZEPLET_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZepletConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ZepletConfig.cmake INSTALL_DESTINATION ${ZEPLET_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZepletConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZepletConfig.cmake
              ${PROJECT_BINARY_DIR}/ZepletConfigVersion.cmake DESTINATION ${ZEPLET_CMAKE_DIR})
# The plugin function and everything beside it that it needs.
file(GLOB plugin_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/ZepletPlugin*)
install(FILES ${plugin_files} DESTINATION ${ZEPLET_CMAKE_DIR})

if(ZEPLET_HOST)
    return()
endif()

set(ZEPLET_HOST_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZepletHost)
install(TARGETS zeplet_host EXPORT ZepletHostTargets)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/host/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zeplet-host
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE PATTERN "link" EXCLUDE)
install(EXPORT ZepletHostTargets NAMESPACE Zeplet:: FILE ZepletHostTargets-export.cmake
        DESTINATION ${ZEPLET_HOST_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZepletHostConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ZepletHostConfig.cmake INSTALL_DESTINATION ${ZEPLET_HOST_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZepletHostConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZepletHostConfig.cmake
              ${PROJECT_BINARY_DIR}/ZepletHostConfigVersion.cmake
        DESTINATION ${ZEPLET_HOST_CMAKE_DIR})

# The panel and the simulator, where they are built.
foreach(program zeplet-panel zeplet-simulator)
    if(TARGET ${program})
        install(TARGETS ${program})
    endif()
endforeach()
