# 32-bit ARM with hardware floating point, against the root file system that make_root makes in
# build/arm-root. Programs run under qemu.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)

get_filename_component(arm_root ${CMAKE_CURRENT_LIST_DIR}/../../build/arm-root ABSOLUTE)
set(CMAKE_SYSROOT ${arm_root})
set(CMAKE_FIND_ROOT_PATH ${arm_root})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static -L ${arm_root})

set(ENV{PKG_CONFIG_SYSROOT_DIR} ${arm_root})
set(ENV{PKG_CONFIG_LIBDIR}
    ${arm_root}/usr/lib/arm-linux-gnueabihf/pkgconfig:${arm_root}/usr/share/pkgconfig)

# Qt asks for a Qt of the build machine, for its tools; none of them is run here
set(QT_HOST_PATH /usr)
file(GLOB host_cmake /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake)
set(QT_HOST_PATH_CMAKE_DIR ${host_cmake})
