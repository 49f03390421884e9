#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "Src/HXUI/HXTypes.h"

/// The size in pixels that a PNG or JPEG file says it has, without decoding it.
/// Nothing for any other format, when the file ends before it has said so, when
/// it names a size beyond 31 bits, or when a segment of a JPEG, before its end, is
/// longer than the file. Any thread.
std::optional<HXSize> ClaimedPictureSize(std::span<const unsigned char> file);
