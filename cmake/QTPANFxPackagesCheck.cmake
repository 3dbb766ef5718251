# Read by cpack before it makes packages: says what would make wrong packages, or none.

if(NOT CPACK_GENERATOR STREQUAL DEB)
    return()
endif()

# without these cpack ends in the middle, or makes packages that ask for no libraries
foreach(needed IN LISTS CPACK_QTPANFX_NEEDED)
    string(REGEX MATCH "^(.+)=(.+)$" needed "${needed}")
    set(package ${CMAKE_MATCH_2})
    find_program(tool_path ${CMAKE_MATCH_1} NO_CACHE)
    if(NOT tool_path)
        message(FATAL_ERROR
            "There is no program ${CMAKE_MATCH_1}, which Debian packages are made with; "
            "it comes with the package ${package}")
    endif()
    unset(tool_path)
endforeach()

# Debian keeps libraries in a folder for each architecture. CMake takes it for the prefix /usr only.
if(CPACK_QTPANFX_MULTIARCH AND NOT CPACK_QTPANFX_LIBDIR STREQUAL "lib/${CPACK_QTPANFX_MULTIARCH}")
    message(FATAL_ERROR
        "This build puts libraries into /usr/${CPACK_QTPANFX_LIBDIR}, which is not where Debian's "
        "linker and compiler look first: that is /usr/lib/${CPACK_QTPANFX_MULTIARCH}. Make packages "
        "of the preset \"package\" or \"package5\", or configure with -DCMAKE_INSTALL_PREFIX=/usr "
        "in a new folder")
endif()

if(CPACK_QTPANFX_SYSROOT)
    message(WARNING
        "These packages are for development: the library in them obeys the environment variable "
        "QTPANFX_SYSROOT. The presets \"package\" and \"package5\" make those for an instrument")
endif()
