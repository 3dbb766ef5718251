require qtpanfx.inc

inherit qt6-cmake

EXTRA_OECMAKE += "-DQTPANFX_QT_MAJOR=6"
