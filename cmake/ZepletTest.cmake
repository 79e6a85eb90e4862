# zeplet_add_test(NAME tst_x SOURCES ... [LIBS ...] [ENVIRONMENT A=b ...] [LABELS ...] [TIMEOUT s])
#
# A Qt Test program that runs offscreen in a directory of its own and fails on any warning that it
# did not announce with QTest::ignoreMessage. The target
# "stress" builds those with the label "stress", for script/tsan.
include(ZepletPluginTest)

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
