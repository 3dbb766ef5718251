################################################################################
#
# qtpanfx
#
################################################################################

QTPANFX_VERSION = 0.1.0
QTPANFX_SITE = $(call qstrip,$(BR2_PACKAGE_QTPANFX_SOURCE_DIR))
QTPANFX_SITE_METHOD = local
# a folder that was built in holds some gigabytes that are no sources
QTPANFX_OVERRIDE_SRCDIR_RSYNC_EXCLUSIONS = --exclude=/build --exclude=/.git
QTPANFX_LICENSE = MIT
QTPANFX_LICENSE_FILES = LICENSE
QTPANFX_INSTALL_STAGING = YES
QTPANFX_SUPPORTS_IN_SOURCE_BUILD = NO
QTPANFX_DEPENDENCIES = pugixml sqlite
# the instrument's own file system, and no other in front of it; libraries where the system looks
QTPANFX_CONF_OPTS = -DQTPANFX_SYSROOT=OFF -DCMAKE_SKIP_INSTALL_RPATH=ON

ifeq ($(BR2_PACKAGE_QT6BASE_WIDGETS),y)
QTPANFX_DEPENDENCIES += qt6base
QTPANFX_CONF_OPTS += -DQTPANFX_QT_MAJOR=6
else
QTPANFX_DEPENDENCIES += qt5base
QTPANFX_CONF_OPTS += -DQTPANFX_QT_MAJOR=5
endif

$(eval $(cmake-package))
