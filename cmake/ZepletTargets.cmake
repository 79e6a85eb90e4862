# What every target of this tree shares: the language level, strict warnings as errors, hidden
# visibility, checked symbols and the chosen sanitizers.

function(zeplet_configure_target target)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Werror
        -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion
        -Wcast-align -Wduplicated-cond -Wlogical-op -Wold-style-cast)
    target_compile_definitions(${target} PRIVATE
        QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00 QT_NO_CAST_TO_ASCII
        QT_NO_FOREACH QT_USE_QSTRINGBUILDER)
    zeplet_check_symbols(${target})
    zeplet_sanitize(${target})
endfunction()

# A shared library names everything that it needs: a missing symbol is an error of its build.
function(zeplet_check_symbols target)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "SHARED_LIBRARY|MODULE_LIBRARY")
        target_link_options(${target} PRIVATE -Wl,-z,defs)
    endif()
endfunction()

function(zeplet_sanitize target)
    foreach(sanitizer IN LISTS ZEPLET_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${sanitizer})
        target_link_options(${target} PRIVATE -fsanitize=${sanitizer})
    endforeach()
    if("undefined" IN_LIST ZEPLET_SANITIZE)
        target_compile_options(${target} PRIVATE -fno-sanitize-recover=undefined)
        # The sanitizers' own instrumentation makes this warning lie.
        target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
    endif()
endfunction()
