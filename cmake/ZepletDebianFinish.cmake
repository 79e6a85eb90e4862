# Run by cpack on the packages that it made, for what it has no words for: the field Multi-Arch
# (CPACK_ZEPLET_MULTI_ARCH, a list of package=value), a trigger in place of scripts that call
# ldconfig, and archives that are the same for the same content (dpkg-deb heeds SOURCE_DATE_EPOCH).

function(zeplet_finish_control control)
    file(READ ${control} text)
    string(REGEX REPLACE "\n\n+" "\n" text "${text}") # after a description that ends with a line
    foreach(entry IN LISTS CPACK_ZEPLET_MULTI_ARCH)
        string(REPLACE "=" ";" entry ${entry})
        list(GET entry 0 package)
        list(GET entry 1 value)
        if(text MATCHES "(^|\n)Package: ${package}\n")
            string(REGEX REPLACE "(Architecture: [^\n]*\n)" "\\1Multi-Arch: ${value}\n" text "${text}")
        endif()
    endforeach()
    file(WRITE ${control} "${text}")
endfunction()

function(zeplet_use_trigger directory)
    if(NOT EXISTS ${directory}/postinst)
        return()
    endif()
    file(READ ${directory}/postinst text)
    if(NOT text MATCHES "ldconfig")
        return()
    endif()
    file(REMOVE ${directory}/postinst ${directory}/postrm)
    file(WRITE ${directory}/triggers "activate-noawait ldconfig\n")
endfunction()

foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(directory ${package}.d)
    execute_process(COMMAND dpkg-deb -R ${package} ${directory} COMMAND_ERROR_IS_FATAL ANY)
    zeplet_finish_control(${directory}/DEBIAN/control)
    zeplet_use_trigger(${directory}/DEBIAN)
    execute_process(COMMAND dpkg-deb --root-owner-group -Zxz -b ${directory} ${package}
                    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${directory})
endforeach()
