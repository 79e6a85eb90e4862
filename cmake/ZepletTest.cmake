# What a test needs of the build that it belongs to.

# A build for another machine has programs that this one does not start by itself. Tests, and scripts
# whose ZEPLET_BUILD is this directory, start the programs in bin/ of it: there each is a script that
# hands the program to the emulator. Without an emulator it is the build's own directory.
set(ZEPLET_STARTABLE_BUILD ${PROJECT_BINARY_DIR})
if(CMAKE_CROSSCOMPILING_EMULATOR)
    set(ZEPLET_STARTABLE_BUILD ${PROJECT_BINARY_DIR}/emulated)
endif()

# zeplet_make_startable(program ...): programs of this build that tests start as processes.
function(zeplet_make_startable)
    if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
        return()
    endif()
    list(JOIN CMAKE_CROSSCOMPILING_EMULATOR "' '" emulator)
    foreach(program IN LISTS ARGN)
        set(script ${ZEPLET_STARTABLE_BUILD}/bin/${program})
        file(CONFIGURE OUTPUT ${script} @ONLY CONTENT
             "#!/bin/sh\nexec '@emulator@' '@CMAKE_RUNTIME_OUTPUT_DIRECTORY@/@program@' \"$@\"\n")
        file(CHMOD ${script} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    endforeach()
    foreach(entry CMakeCache.txt check lib plugins)
        file(CREATE_LINK ${PROJECT_BINARY_DIR}/${entry} ${ZEPLET_STARTABLE_BUILD}/${entry} SYMBOLIC)
    endforeach()
endfunction()
zeplet_make_startable(zeplet-panel zeplet-simulator)

# zeplet_add_test(NAME tst_x SOURCES ... [LIBS ...] [ENVIRONMENT A=b ...] [LABELS ...] [TIMEOUT s])
#
# A Qt Test program that runs offscreen in a directory of its own and fails on any warning that it
# did not announce with QTest::ignoreMessage. The target
# "stress" builds those with the label "stress", for script/tsan. The label "native" is for what runs
# nothing of this build, or can't run under an emulator: the preset arm64 leaves it out.
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
