# What every target of the project is compiled with.

add_library(qtpanfx_options INTERFACE)
target_compile_options(qtpanfx_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wformat=2
    $<$<BOOL:${QTPANFX_WERROR}>:-Werror>)
target_compile_definitions(qtpanfx_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

if(QTPANFX_SANITIZE)
    target_compile_options(qtpanfx_options INTERFACE
        -fsanitize=${QTPANFX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(qtpanfx_options INTERFACE -fsanitize=${QTPANFX_SANITIZE})
endif()
if(QTPANFX_COVERAGE)
    target_compile_options(qtpanfx_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
    target_link_options(qtpanfx_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
endif()
