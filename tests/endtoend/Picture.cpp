#include "tests/endtoend/Picture.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>

namespace {

int Contrast(Color one, Color other) {
  return std::max({std::abs(one.red - other.red), std::abs(one.green - other.green),
                   std::abs(one.blue - other.blue)});
}

std::uint32_t Crc(const std::string& bytes) {
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    crc ^= static_cast<std::uint8_t>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
  }
  return ~crc;
}

std::uint32_t Adler(const std::string& bytes) {
  std::uint32_t sum = 1;
  std::uint32_t sums = 0;
  for (const char byte : bytes) {
    sum = (sum + static_cast<std::uint8_t>(byte)) % 65521U;
    sums = (sums + sum) % 65521U;
  }
  return (sums << 16U) | sum;
}

std::string BigEndian(std::uint32_t number) {
  return {static_cast<char>(number >> 24U), static_cast<char>(number >> 16U),
          static_cast<char>(number >> 8U), static_cast<char>(number)};
}

std::string Chunk(const std::string& name, const std::string& content) {
  return BigEndian(static_cast<std::uint32_t>(content.size())) + name + content +
         BigEndian(Crc(name + content));
}

/// A zlib stream of stored blocks: large, and in need of no library.
std::string Store(const std::string& bytes) {
  constexpr std::size_t kBlock = 65535;
  std::string stream = "\x78\x01";
  for (std::size_t at = 0; at < bytes.size(); at += kBlock) {
    const std::size_t length = std::min(kBlock, bytes.size() - at);
    const auto low = static_cast<char>(length & 0xFFU);
    const auto high = static_cast<char>(length >> 8U);
    stream += at + length == bytes.size() ? '\x01' : '\0';
    stream += {low, high, static_cast<char>(~low), static_cast<char>(~high)};
    stream.append(bytes, at, length);
  }
  return stream + BigEndian(Adler(bytes));
}

}  // namespace

Picture Picture::Crop(Area area) const {
  if (!IsInside(area.x, area.y) || !IsInside(area.x + area.width - 1, area.y + area.height - 1)) {
    return {};
  }
  Picture part(area.width, area.height);
  for (int y = 0; y < area.height; ++y) {
    for (int x = 0; x < area.width; ++x) part.At(x, y) = At(area.x + x, area.y + y);
  }
  return part;
}

int Picture::Count(Area area, const std::function<bool(Color)>& property) const {
  int count = 0;
  for (int y = area.y; y < area.y + area.height; ++y) {
    for (int x = area.x; x < area.x + area.width; ++x) {
      if (IsInside(x, y) && property(At(x, y))) ++count;
    }
  }
  return count;
}

int Picture::CountPaper(Area area, Color paper) const {
  return Count(area, [paper](Color color) { return color == paper; });
}

int Picture::CountInk(Area area, Color paper) const {
  return Count(area, [paper](Color color) { return color != paper; });
}

void Picture::Write(const std::string& file) const {
  std::string lines;
  for (int y = 0; y < height; ++y) {
    lines += '\0';
    for (int x = 0; x < width; ++x) {
      const Color color = At(x, y);
      lines += {static_cast<char>(color.red), static_cast<char>(color.green),
                static_cast<char>(color.blue)};
    }
  }
  // Eight bits for each of red, green and blue.
  const std::string header = BigEndian(static_cast<std::uint32_t>(width)) +
                             BigEndian(static_cast<std::uint32_t>(height)) +
                             std::string("\x08\x02\0\0\0", 5);
  std::ofstream(file, std::ios::binary)
      << "\x89PNG\r\n\x1A\n"
      << Chunk("IHDR", header) << Chunk("IDAT", Store(lines)) << Chunk("IEND", "");
}

Lettering::Lettering(const Picture& picture, Area area, Color paper) {
  int strongest = 0;
  picture.Count(area, [&strongest, paper](Color color) {
    strongest = std::max(strongest, Contrast(color, paper));
    return false;
  });
  if (strongest == 0) return;
  int left = area.x + area.width;
  int right = area.x;
  int top = area.y + area.height;
  int bottom = area.y;
  for (int y = area.y; y < area.y + area.height; ++y) {
    for (int x = area.x; x < area.x + area.width; ++x) {
      if (2 * Contrast(picture.At(x, y), paper) <= strongest) continue;
      ++inkedPixels;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  width = right - left + 1;
  height = bottom - top + 1;
}

bool Lettering::LooksLike(const Lettering& other) const {
  constexpr int kFraction = 1;
  const int difference = std::abs(inkedPixels - other.inkedPixels);
  return std::abs(width - other.width) <= kFraction &&
         std::abs(height - other.height) <= kFraction &&
         difference * 8 <= std::max(inkedPixels, other.inkedPixels);
}

std::string Lettering::Describe() const {
  return std::to_string(width) + "x" + std::to_string(height) + " with " +
         std::to_string(inkedPixels) + " inked pixels";
}
