# What is installed, and where. Components: foundation, foundation-dev, headers (the same for both Qt
# versions), library, library-dev.

install(TARGETS TAMFx EXPORT TAMFxTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT foundation NAMELINK_COMPONENT foundation-dev)
install(TARGETS QTPANFx EXPORT QTPANFxTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT library NAMELINK_COMPONENT library-dev)

function(qtpanfx_install_headers component)
    foreach(header IN LISTS ARGN)
        get_filename_component(folder ${header} DIRECTORY)
        install(FILES ${header}
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/QTPANFx/${folder} COMPONENT ${component})
    endforeach()
endfunction()
qtpanfx_install_headers(foundation-dev ${TAMFX_HEADERS})
qtpanfx_install_headers(headers ${QTPANFX_HEADERS})

# ---- the CMake packages
include(CMakePackageConfigHelpers)
function(qtpanfx_install_package package template targets component)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
    install(EXPORT ${targets} NAMESPACE QTPANFx:: FILE ${package}Targets.cmake
        DESTINATION ${folder} COMPONENT ${component})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${template}Config.cmake.in
        ${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake INSTALL_DESTINATION ${folder})
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES
        ${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake
        DESTINATION ${folder} COMPONENT ${component})
endfunction()
qtpanfx_install_package(TAMFx TAMFx TAMFxTargets foundation-dev)
qtpanfx_install_package(${QTPANFX_PACKAGE} QTPANFx QTPANFxTargets library-dev)

# ---- pkg-config; paths are relative, so that the installed tree can be moved
file(RELATIVE_PATH QTPANFX_PC_TO_PREFIX
    /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" QTPANFX_PC_TO_PREFIX "${QTPANFX_PC_TO_PREFIX}")
function(qtpanfx_install_pkgconfig package template component)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${template}.pc.in
        ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${component})
endfunction()
qtpanfx_install_pkgconfig(TAMFx TAMFx foundation-dev)
qtpanfx_install_pkgconfig(${QTPANFX_PACKAGE} QTPANFx library-dev)
