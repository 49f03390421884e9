#pragma once

// What the macOS halves of the file pairs use of the platform's own headers, as its
// published documentation declares it. Only for compiling those halves where there
// is no macOS: a wrong name, type or number of arguments is found, a wrong use is not.
#include <cstdint>

using Boolean = unsigned char;
using OSStatus = std::int32_t;
using OSErr = std::int16_t;
using OSType = std::uint32_t;
using UInt32 = std::uint32_t;
using SInt16 = std::int16_t;

using CFTypeRef = const void*;
using CFAllocatorRef = const struct __CFAllocator*;
using CFURLRef = const struct __CFURL*;
using CFArrayRef = const struct __CFArray*;

extern "C" {
extern const CFAllocatorRef kCFAllocatorDefault;
void CFRelease(CFTypeRef object);
}
