# zeplet_add_plugin(NAME name SOURCES file ... [LIBS library ...] [TRANSLATIONS file.ts ...]
#                   [TARGET target] [NO_INSTALL])
#
# Adds a plugin: a loadable library with C++17, AUTOMOC, hidden visibility and checked symbols that
# links Zeplet::zeplet and LIBS. NAME is the name that the plugin registers: a letter or digit, then
# at most 63 letters, digits, "_" and "-"; it is also the file's name (NAME.so), the target's unless
# TARGET says otherwise, and part of the tag (name, library version, Qt version, compiler interface,
# architecture) that a panel reads before it opens the library.
#
# TRANSLATIONS are files of Qt's translation tools, NAME_LANGUAGE.ts: they become a part of the library,
# and the panel loads them for the language that the operator chose.
#
# The library is built into plugins/ of the build tree and, without NO_INSTALL, installed into
# lib/zeplet/plugins. The target "zeplet_plugins" builds the plugins without their tests. Works within
# this tree and after find_package(Zeplet) alike.
include(GNUInstallDirs)
include(${CMAKE_CURRENT_LIST_DIR}/ZepletPluginTranslations.cmake)

set(ZEPLET_PLUGIN_MODULE_DIR ${CMAKE_CURRENT_LIST_DIR})
set(ZEPLET_PLUGIN_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/zeplet/plugins)

function(zeplet_add_plugin)
    cmake_parse_arguments(ARG "NO_INSTALL" "NAME;TARGET" "SOURCES;LIBS;TRANSLATIONS" ${ARGN})
    zeplet_check_plugin_arguments()
    if(NOT ARG_TARGET)
        set(ARG_TARGET ${ARG_NAME})
    endif()

    add_library(${ARG_TARGET} MODULE ${ARG_SOURCES})
    zeplet_configure_plugin(${ARG_TARGET})
    zeplet_tag_plugin(${ARG_TARGET})
    if(NOT TARGET zeplet_plugins)
        add_custom_target(zeplet_plugins)
    endif()
    add_dependencies(zeplet_plugins ${ARG_TARGET})
    target_link_libraries(${ARG_TARGET} PRIVATE ${ARG_LIBS} Zeplet::zeplet)
    if(ARG_TRANSLATIONS)
        zeplet_add_translations(${ARG_TARGET} ${ARG_NAME} ${ARG_TRANSLATIONS})
    endif()
    if(NOT ARG_NO_INSTALL)
        install(TARGETS ${ARG_TARGET} LIBRARY DESTINATION ${ZEPLET_PLUGIN_INSTALL_DIR})
        set_property(GLOBAL APPEND PROPERTY ZEPLET_PLUGINS ${ARG_NAME}) # what a package holds
    endif()
endfunction()

# The arguments of zeplet_add_plugin; the name becomes a file's name and a line of the tag.
macro(zeplet_check_plugin_arguments)
    string(LENGTH "${ARG_NAME}" length)
    if(NOT ARG_NAME MATCHES "^[A-Za-z0-9][A-Za-z0-9_-]*$" OR length GREATER 64)
        message(FATAL_ERROR "zeplet_add_plugin: NAME '${ARG_NAME}' is not a letter or digit followed "
                            "by at most 63 letters, digits, '_' and '-'")
    endif()
    if(NOT ARG_SOURCES)
        message(FATAL_ERROR "zeplet_add_plugin: ${ARG_NAME} has no SOURCES")
    endif()
    if(ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "zeplet_add_plugin: ${ARG_NAME}: unknown arguments "
                            "'${ARG_UNPARSED_ARGUMENTS}'")
    endif()
endmacro()

function(zeplet_configure_plugin target)
    set_target_properties(${target} PROPERTIES
        PREFIX ""
        OUTPUT_NAME ${ARG_NAME}
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/plugins
        INSTALL_RPATH "$ORIGIN/../.."
        AUTOMOC ON
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_link_options(${target} PRIVATE -Wl,-z,defs)
    # Within this tree: its warnings and sanitizers.
    if(COMMAND zeplet_configure_target)
        zeplet_configure_target(${target})
    endif()
endfunction()

# Adds the source that holds the tag. Qt's version and the compiler's interface come from the
# compiler that builds the plugin, the library's from the package in use.
function(zeplet_tag_plugin target)
    set(ZEPLET_PLUGIN_LIBRARY_VERSION ${Zeplet_VERSION})
    if(NOT ZEPLET_PLUGIN_LIBRARY_VERSION)
        set(ZEPLET_PLUGIN_LIBRARY_VERSION ${zeplet_VERSION})
    endif()
    set(tag ${CMAKE_CURRENT_BINARY_DIR}/${target}_tag.cpp)
    configure_file(${ZEPLET_PLUGIN_MODULE_DIR}/ZepletPluginTag.cpp.in ${tag} @ONLY)
    set_source_files_properties(${tag} PROPERTIES SKIP_AUTOMOC ON
        INCLUDE_DIRECTORIES ${ZEPLET_PLUGIN_MODULE_DIR})
    target_sources(${target} PRIVATE ${tag})
endfunction()
