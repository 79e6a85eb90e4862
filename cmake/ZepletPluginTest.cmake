# zeplet_add_plugin_test(NAME tst_x PLUGINS target ... SOURCES file ... [LIBS library ...] [TIMEOUT s])
#
# Adds a Qt Test program for plugins, linked to Zeplet::Test, LIBS and Qt5::Test, and registers it
# with CTest. PLUGINS are targets of zeplet_add_plugin(): the test depends on them, and its TestPanel
# loads their files. The test runs offscreen in a directory of its own, and any warning that it did
# not announce with QTest::ignoreMessage() fails it.
#
# Does nothing where tests are not wanted (BUILD_TESTING is off; include(CTest) turns it on) or can't
# be run (cross-compiling without an emulator), and says so where the test kit is not installed.
# Works within this tree and after find_package(Zeplet) alike.

function(zeplet_add_plugin_test)
    cmake_parse_arguments(ARG "" "NAME;TIMEOUT" "PLUGINS;SOURCES;LIBS" ${ARGN})
    if(NOT ARG_NAME OR NOT ARG_SOURCES OR ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "zeplet_add_plugin_test: NAME and SOURCES are needed, and nothing but "
                            "PLUGINS, LIBS and TIMEOUT beside them: ${ARGN}")
    endif()
    zeplet_tests_wanted(wanted)
    if(NOT wanted)
        return()
    endif()
    find_package(Qt5 QUIET COMPONENTS Test)
    if(NOT TARGET Zeplet::Test)
        find_package(ZepletTest QUIET CONFIG)
    endif()
    if(NOT TARGET Zeplet::Test OR NOT TARGET Qt5::Test)
        message(STATUS "${ARG_NAME} is left out: install the packages zeplet-kit and qtbase5-dev")
        return()
    endif()

    add_executable(${ARG_NAME} ${ARG_SOURCES})
    zeplet_configure_plugin_test(${ARG_NAME})
    zeplet_register_test(${ARG_NAME} COMMAND ${ARG_NAME} TIMEOUT "${ARG_TIMEOUT}")
endfunction()

function(zeplet_tests_wanted result)
    if(COMMAND zeplet_configure_target) # within this tree
        set(wanted ${ZEPLET_BUILD_TESTS})
    else()
        set(wanted ${BUILD_TESTING})
    endif()
    if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
        set(wanted OFF)
    endif()
    set(${result} "${wanted}" PARENT_SCOPE)
endfunction()

function(zeplet_configure_plugin_test target)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON)
    set(files "")
    foreach(plugin IN LISTS ARG_PLUGINS)
        list(APPEND files "$<TARGET_FILE:${plugin}>")
        add_dependencies(${target} ${plugin})
    endforeach()
    list(JOIN files "|" files)
    target_compile_definitions(${target} PRIVATE
        ZEPLET_TEST_PLUGINS="${files}"
        ZEPLET_TEST_DIRECTORY="${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${target} PRIVATE ${ARG_LIBS} Zeplet::Test Qt5::Test)
    # Within this tree: its warnings and sanitizers.
    if(COMMAND zeplet_configure_target)
        zeplet_configure_target(${target})
    endif()
endfunction()

# zeplet_register_test(name COMMAND ... [TIMEOUT s] [ENVIRONMENT ...] [LABELS ...])
function(zeplet_register_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND;ENVIRONMENT;LABELS" ${ARGN})
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/run/${name})
    file(MAKE_DIRECTORY ${directory}/home)
    file(CHMOD ${directory}/home PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 60)
    endif()
    if(CMAKE_CROSSCOMPILING) # an emulator is slow
        math(EXPR ARG_TIMEOUT "${ARG_TIMEOUT} * 10")
        list(APPEND ARG_ENVIRONMENT "QTEST_FUNCTION_TIMEOUT=${ARG_TIMEOUT}000")
    endif()
    add_test(NAME ${name} COMMAND ${ARG_COMMAND} WORKING_DIRECTORY ${directory})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        COST ${ARG_TIMEOUT} # the longest start first, so that none is waited for alone in the end
        LABELS "${ARG_LABELS}"
        FAIL_REGULAR_EXPRESSION "QWARN |QCRITICAL|QFATAL"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FONT_DPI=96;HOME=${directory}/home;XDG_RUNTIME_DIR=${directory}/home;${ARG_ENVIRONMENT}")
endfunction()
