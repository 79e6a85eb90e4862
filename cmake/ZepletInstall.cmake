# What an installation holds, by component:
#   runtime      the library, and the reference host's where this build made one
#   development  their headers and CMake packages. Private headers (*_p.h) stay here
#   kit          what else an author needs: panel, simulator, test kit, examples' sources, documents,
#                and all that other folders install without naming a component
#   examples     the examples, built: an installed panel shows them
include(CMakePackageConfigHelpers)

set(ZEPLET_HOST_PACKAGE ZepletHost)
if(ZEPLET_HOST)
    set(ZEPLET_HOST_PACKAGE ${ZEPLET_HOST})
endif()

# The library of a target with its public headers, and the package that finds them. The build tree
# has the package, too, in the same place: a project that is given the tree as its prefix uses it.
function(zeplet_install_package package target)
    cmake_parse_arguments(ARG "" "HEADERS;INTO;COMPONENT" "EXCEPT" ${ARGN})
    set(directory ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
    set(runtime runtime)
    set(development development)
    set(libraries ${CMAKE_INSTALL_LIBDIR})
    if(ARG_COMPONENT) # what no other package may link
        set(runtime ${ARG_COMPONENT})
        set(development ${ARG_COMPONENT})
        string(APPEND libraries /zeplet)
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/..")
    endif()
    install(TARGETS ${target} EXPORT ${package}Targets
            LIBRARY DESTINATION ${libraries} COMPONENT ${runtime} NAMELINK_COMPONENT ${development})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${ARG_HEADERS}/
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ARG_INTO} COMPONENT ${development}
            FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE ${ARG_EXCEPT})
    set(built ${PROJECT_BINARY_DIR}/lib/cmake/${package})
    install(EXPORT ${package}Targets NAMESPACE Zeplet:: FILE ${package}Targets-export.cmake
            DESTINATION ${directory} COMPONENT ${development})
    export(EXPORT ${package}Targets NAMESPACE Zeplet:: FILE ${built}/${package}Targets-export.cmake)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in
        ${built}/${package}Config.cmake INSTALL_DESTINATION ${directory})
    write_basic_package_version_file(${built}/${package}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${built}/${package}Config.cmake ${built}/${package}ConfigVersion.cmake
            DESTINATION ${directory} COMPONENT ${development})
endfunction()

zeplet_install_package(Zeplet zeplet HEADERS src INTO zeplet)
# The plugin function and everything beside it that it needs, what makes a plugin's package, and what
# builds a plugin for 64-bit Arm and runs its tests here.
file(GLOB plugin_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/ZepletPlugin*
                                         ${PROJECT_SOURCE_DIR}/cmake/ZepletDebian*)
list(APPEND plugin_files ${PROJECT_SOURCE_DIR}/cmake/arm64.cmake)
set(arm64run ${PROJECT_SOURCE_DIR}/cmake/arm64run)
install(FILES ${plugin_files} DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Zeplet COMPONENT development)
install(PROGRAMS ${arm64run} DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Zeplet COMPONENT development)
foreach(file IN LISTS plugin_files arm64run)
    get_filename_component(name ${file} NAME)
    file(CREATE_LINK ${file} ${PROJECT_BINARY_DIR}/lib/cmake/Zeplet/${name} SYMBOLIC)
endforeach()

if(ZEPLET_PACKAGES)
    include(ZepletPackages)
endif()
if(ZEPLET_HOST)
    return()
endif()

zeplet_install_package(ZepletHost zeplet_host HEADERS host INTO zeplet-host
                       EXCEPT PATTERN link EXCLUDE)

zeplet_install_package(ZepletTest zeplet_test_kit HEADERS testkit INTO zeplet-test COMPONENT kit
                       EXCEPT PATTERN parts EXCLUDE)

install(TARGETS zeplet-panel zeplet-simulator RUNTIME COMPONENT kit)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zeplet COMPONENT kit PATTERN build EXCLUDE
        REGEX examples/CMakeLists.txt EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT kit
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN adr EXCLUDE)
# The reference pages, where they were made: script/docs <build directory>/docs
install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html
        DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT kit OPTIONAL)
