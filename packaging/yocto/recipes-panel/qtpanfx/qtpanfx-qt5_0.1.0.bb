require qtpanfx.inc

inherit cmake_qt5

EXTRA_OECMAKE += "-DQTPANFX_QT_MAJOR=5"
