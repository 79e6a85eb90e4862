# zeplet_add_translations(target name file.ts ...)
#
# Compiles translations, files named ANYTHING_LANGUAGE.ts, into the target as the resources
# ":/zeplet/translations/NAME_LANGUAGE.qm", registered when its library is loaded: the host loads them
# for the language that the operator chose.
function(zeplet_add_translations target name)
    zeplet_find_lrelease(${name})
    set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}_translations.qrc)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}_translations.cpp)
    set(entries "")
    set(compiled "")
    foreach(file IN LISTS ARGN)
        zeplet_compile_translation(${target} ${name} ${file})
    endforeach()
    file(CONFIGURE OUTPUT ${resources} CONTENT
        "<RCC>\n<qresource prefix=\"/zeplet/translations\">\n@entries@</qresource>\n</RCC>\n")
    add_custom_command(OUTPUT ${source}
        COMMAND Qt5::rcc --name ${target}_translations --output ${source} ${resources}
        DEPENDS ${resources} ${compiled}
        COMMENT "Translations of ${name}" VERBATIM)
    set_source_files_properties(${source} PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${source})
endfunction()

# One file; adds to the caller's lists of entries and compiled files.
macro(zeplet_compile_translation target name file)
    get_filename_component(path ${file} ABSOLUTE)
    if(NOT path MATCHES "_([a-z][a-z][a-z]?(_[A-Z][A-Z])?)\\.ts$")
        message(FATAL_ERROR "${name}: the translation ${file} does not end with its language, as in "
                            "${name}_de.ts or ${name}_zh_CN.ts")
    endif()
    if(NOT EXISTS ${path})
        message(FATAL_ERROR "${name}: there is no translation ${file}; lupdate makes it: "
                            "lupdate . -ts ${file}")
    endif()
    set(messages ${name}_${CMAKE_MATCH_1}.qm)
    set(output ${CMAKE_CURRENT_BINARY_DIR}/${target}_translations/${messages})
    add_custom_command(OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/${target}_translations
        COMMAND ${ZEPLET_LRELEASE} -silent ${path} -qm ${output}
        DEPENDS ${path} VERBATIM)
    string(APPEND entries "<file alias=\"${messages}\">${output}</file>\n")
    list(APPEND compiled ${output})
endmacro()

# Beside Qt's other tools for this machine, or where programs are.
function(zeplet_find_lrelease name)
    get_target_property(moc Qt5::moc IMPORTED_LOCATION)
    get_filename_component(tools "${moc}" DIRECTORY)
    find_program(ZEPLET_LRELEASE NAMES lrelease lrelease-qt5 HINTS ${tools} NO_CMAKE_FIND_ROOT_PATH)
    if(NOT ZEPLET_LRELEASE)
        message(FATAL_ERROR "${name} has translations, and Qt's tool lrelease, which compiles them, "
                            "is not installed: install the package qttools5-dev-tools")
    endif()
endfunction()
