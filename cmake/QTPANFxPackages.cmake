# Debian packages, by the target "package" of the presets "package" and "package5". The packages of the
# foundation and the headers are the same whichever Qt version they are built beside; those of the
# library and its development files carry the version in their names. The tools are no library:
# their package is made beside Qt 6 only.

set(CPACK_PACKAGE_NAME qtpanfx)
set(CPACK_PACKAGE_VENDOR QTPANFx)
set(CPACK_PACKAGE_CONTACT "QTPANFx developers <developers@qtpanfx.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL foundation foundation-dev headers library library-dev)
if(TARGET printer-emulator AND QTPANFX_QT_MAJOR EQUAL 6)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

if(QTPANFX_QT_MAJOR EQUAL 5)
    set(library_package libqtpanfx-qt5-${QTPANFX_SOVERSION})
    set(library_dev_package libqtpanfx-qt5-dev)
    set(qt_dev_package "qtbase5-dev (>= ${QTPANFX_QT_OLDEST})")
else()
    set(library_package libqtpanfx${QTPANFX_SOVERSION})
    set(library_dev_package libqtpanfx-dev)
    set(qt_dev_package "qt6-base-dev (>= ${QTPANFX_QT_OLDEST})")
endif()
set(foundation_package libtamfx${QTPANFX_SOVERSION})
set(same_version "(= ${PROJECT_VERSION})")

# qtpanfx_package(COMPONENT NAME DESCRIPTION [DEPENDENCIES])
function(qtpanfx_package component name description)
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_COMPONENT_${key}_DESCRIPTION ${description} PARENT_SCOPE)
    string(JOIN ", " dependencies ${ARGN})
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS ${dependencies} PARENT_SCOPE)
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} RENAME copyright COMPONENT ${component})
    if(component MATCHES "dev|headers")
        set(CPACK_DEBIAN_${key}_PACKAGE_SECTION libdevel PARENT_SCOPE)
    endif()
endfunction()
qtpanfx_package(foundation ${foundation_package}
    "Foundation of QTPANFx: XML tree, collections, configuration file, SQLite")
qtpanfx_package(foundation-dev libtamfx-dev
    "Foundation of QTPANFx: files for development" "${foundation_package} ${same_version}")
qtpanfx_package(headers libqtpanfx-headers
    "QTPANFx: headers for both Qt versions" "libtamfx-dev ${same_version}")
set(CPACK_DEBIAN_HEADERS_PACKAGE_ARCHITECTURE all)
qtpanfx_package(library ${library_package}
    "XML layout files to the touch panel of an instrument, with Qt ${QTPANFX_QT_MAJOR}"
    "${foundation_package} ${same_version}")
qtpanfx_package(library-dev ${library_dev_package}
    "QTPANFx with Qt ${QTPANFX_QT_MAJOR}: files for development"
    "${library_package} ${same_version}" "libqtpanfx-headers ${same_version}" "${qt_dev_package}")
if("tools" IN_LIST CPACK_COMPONENTS_ALL)
    qtpanfx_package(tools qtpanfx-tools
        "QTPANFx: an emulator of the thermal printer, for development machines")
    set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
endif()

# what cpack and the test of the packages need to know of this build
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/QTPANFxPackagesCheck.cmake)
set(CPACK_QTPANFX_NEEDED "dpkg-deb=dpkg;dpkg-shlibdeps=dpkg-dev;file=file;readelf=binutils")
set(CPACK_QTPANFX_SOVERSION ${QTPANFX_SOVERSION})
set(CPACK_QTPANFX_LIBDIR ${CMAKE_INSTALL_LIBDIR})
set(CPACK_QTPANFX_SYSROOT ${QTPANFX_SYSROOT})
if(EXISTS /etc/debian_version)
    set(CPACK_QTPANFX_MULTIARCH ${CMAKE_LIBRARY_ARCHITECTURE})
endif()

include(CPack)
