# zeplet_add_test(NAME tst_x SOURCES ... [LIBS ...] [ENVIRONMENT A=b ...] [LABELS ...] [TIMEOUT s])
#
# A Qt Test program that runs offscreen in a directory of its own and fails on any warning that it
# did not announce with QTest::ignoreMessage. The target
# "stress" builds those with the label "stress", for script/tsan.
add_custom_target(stress)
function(zeplet_add_test)
    cmake_parse_arguments(ARG "" "NAME;TIMEOUT" "SOURCES;LIBS;ENVIRONMENT;LABELS" ${ARGN})
    add_executable(${ARG_NAME} ${ARG_SOURCES})
    zeplet_configure_target(${ARG_NAME})
    target_link_libraries(${ARG_NAME} PRIVATE ${ARG_LIBS} Qt5::Test)
    if("stress" IN_LIST ARG_LABELS)
        add_dependencies(stress ${ARG_NAME})
    endif()
    zeplet_register_test(${ARG_NAME} COMMAND ${ARG_NAME} TIMEOUT "${ARG_TIMEOUT}"
                         ENVIRONMENT ${ARG_ENVIRONMENT} LABELS ${ARG_LABELS})
endfunction()

# zeplet_register_test(name COMMAND ... [TIMEOUT s] [ENVIRONMENT ...] [LABELS ...])
function(zeplet_register_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND;ENVIRONMENT;LABELS" ${ARGN})
    set(directory ${CMAKE_CURRENT_BINARY_DIR}/run/${name})
    file(MAKE_DIRECTORY ${directory}/home)
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 60)
    endif()
    add_test(NAME ${name} COMMAND ${ARG_COMMAND} WORKING_DIRECTORY ${directory})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        LABELS "${ARG_LABELS}"
        FAIL_REGULAR_EXPRESSION "QWARN |QCRITICAL|QFATAL"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FONT_DPI=96;HOME=${directory}/home;XDG_RUNTIME_DIR=${directory}/home;${ARG_ENVIRONMENT}")
endfunction()
