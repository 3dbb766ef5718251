#pragma once

/** Marks what libTAMFx shows to its users; everything else is hidden. */
#define TAMFX_EXPORT __attribute__((visibility("default")))
