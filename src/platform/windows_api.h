#pragma once

/// The one way in to the Windows API: without its min and max macros and without the parts that nobody here
/// uses.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif

#include <windows.h>
