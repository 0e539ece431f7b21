#pragma once

// The header names a field with a word that C++ keeps for itself.
#define explicit explicitFlag
#include <xcb/xkb.h>
#undef explicit
