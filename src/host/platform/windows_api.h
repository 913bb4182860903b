// The system's own header, without what gets into the way of ours.
#pragma once

#if !defined(WIN32_LEAN_AND_MEAN)
#define WIN32_LEAN_AND_MEAN
#endif
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>

// A macro without a meaning, left over from systems of 16 bits.
#undef Yield
