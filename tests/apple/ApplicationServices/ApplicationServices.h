#pragma once

#include "CoreGraphics.h"

using LSRolesMask = UInt32;
constexpr LSRolesMask kLSRolesAll = 0xFFFFFFFF;

extern "C" CFArrayRef LSCopyApplicationURLsForURL(CFURLRef url, LSRolesMask roles);
