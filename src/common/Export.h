#pragma once

// Marks what the shared library QTPANFx shows to applications; everything else stays hidden.
#define QTPANFX_EXPORT __attribute__((visibility("default")))
