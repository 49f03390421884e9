#include "Src/HXUI/PictureSize.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

using Bytes = std::span<const unsigned char>;

std::uint32_t BigEndian(Bytes bytes) {
  std::uint32_t number = 0;
  for (const unsigned char byte : bytes) number = number << 8 | byte;
  return number;
}

std::optional<HXSize> MakeSize(std::uint32_t width, std::uint32_t height) {
  constexpr std::uint32_t kMost = std::numeric_limits<std::int32_t>::max();
  if (width > kMost || height > kMost) return std::nullopt;
  return HXSize{static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)};
}

bool StartsWith(Bytes file, Bytes start) {
  return file.size() >= start.size() && std::equal(start.begin(), start.end(), file.begin());
}

std::optional<HXSize> SizeOfPng(Bytes file) {
  // The signature and the first chunk's length and name come before.
  constexpr std::size_t kWidthOffset = 16;
  constexpr std::size_t kHeightOffset = 20;
  if (file.size() < kHeightOffset + 4) return std::nullopt;
  return MakeSize(BigEndian(file.subspan(kWidthOffset, 4)),
                  BigEndian(file.subspan(kHeightOffset, 4)));
}

constexpr unsigned char kEndOfImage = 0xD9;
constexpr unsigned char kStartOfScan = 0xDA;

/// Start-of-frame markers are all of this row but the ones for tables.
bool IsFrame(unsigned char marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool HasNoContent(unsigned char marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

/// From behind a start-of-scan segment to the next marker: in between are the
/// pixels, in which a byte of this value stands for itself or for a restart.
std::size_t SkipScan(Bytes file, std::size_t position) {
  while (position + 1 < file.size()) {
    const unsigned char next = file[position + 1];
    const bool isPixel = next == 0x00 || (next >= 0xD0 && next <= 0xD7);
    if (file[position] == 0xFF && !isPixel) return position;
    ++position;
  }
  return file.size();
}

std::optional<HXSize> SizeOfJpeg(Bytes file) {
  std::optional<HXSize> size;
  std::size_t position = 2;
  while (position + 1 < file.size()) {
    // Markers may be filled up with further bytes of this value.
    if (file[position] != 0xFF) return std::nullopt;
    const unsigned char marker = file[++position];
    if (marker == 0xFF) continue;
    ++position;
    if (marker == kEndOfImage) return size;
    if (HasNoContent(marker)) continue;
    if (file.size() - position < 2) return std::nullopt;
    const std::uint32_t length = BigEndian(file.subspan(position, 2));
    if (length < 2 || length > file.size() - position) return std::nullopt;
    if (IsFrame(marker)) {
      // Its length and the bits per sample, then height and width.
      if (size || length < 7) return std::nullopt;
      size = MakeSize(BigEndian(file.subspan(position + 5, 2)),
                      BigEndian(file.subspan(position + 3, 2)));
    }
    position += length;
    if (marker == kStartOfScan) position = SkipScan(file, position);
  }
  return size;
}

}  // namespace

std::optional<HXSize> ClaimedPictureSize(Bytes file) {
  static constexpr std::array<unsigned char, 8> kPng{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  static constexpr std::array<unsigned char, 2> kJpeg{0xFF, 0xD8};
  if (StartsWith(file, kPng)) return SizeOfPng(file);
  if (StartsWith(file, kJpeg)) return SizeOfJpeg(file);
  return std::nullopt;
}
