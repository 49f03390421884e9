#include "installer/BinaryPropertyList.h"

namespace {

constexpr std::string_view kMagic = "bplist";
constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kTrailerSize = 32;

// The high half of an object's first byte.
constexpr unsigned kConstant = 0x0;
constexpr unsigned kInteger = 0x1;
constexpr unsigned kReal = 0x2;
constexpr unsigned kDate = 0x3;
constexpr unsigned kData = 0x4;
constexpr unsigned kBytesText = 0x5;
constexpr unsigned kWideText = 0x6;
constexpr unsigned kIdentifier = 0x8;
constexpr unsigned kArray = 0xA;
constexpr unsigned kSet = 0xC;
constexpr unsigned kDictionary = 0xD;

bool IsContainer(unsigned kind) { return kind == kArray || kind == kSet || kind == kDictionary; }

}  // namespace

bool BinaryPropertyList::HasMagic(std::string_view content) { return content.starts_with(kMagic); }

bool BinaryPropertyList::IsSafe(std::size_t mostObjects, std::size_t mostNesting) {
  if (!ReadTrailer()) return false;
  std::vector<Visit> pending = {{rootObject, 0}};
  for (std::size_t visited = 0; !pending.empty(); ++visited) {
    const Visit visit = pending.back();
    pending.pop_back();
    std::uint64_t offset = 0;
    Body body{};
    if (!FindOffset(visit.object, &offset) || !ReadBody(offset, &body)) return false;
    const unsigned kind = High(offset);
    if (!IsContainer(kind)) continue;
    if (visit.depth == mostNesting) return false;
    const std::uint64_t references = kind == kDictionary ? 2 * body.count : body.count;
    if (visited + pending.size() + references >= mostObjects) return false;
    for (std::uint64_t i = 0; i < references; ++i) {
      const std::uint64_t at = body.start + i * referenceSize;
      pending.push_back({ReadNumber(at, referenceSize), visit.depth + 1});
    }
  }
  return true;
}

bool BinaryPropertyList::ReadTrailer() {
  if (bytes.size() < kHeaderSize + kTrailerSize) return false;
  const std::size_t trailer = bytes.size() - kTrailerSize;
  offsetSize = ReadNumber(trailer + 6, 1);
  referenceSize = ReadNumber(trailer + 7, 1);
  objectCount = ReadNumber(trailer + 8, 8);
  rootObject = ReadNumber(trailer + 16, 8);
  tableStart = ReadNumber(trailer + 24, 8);
  if (offsetSize < 1 || offsetSize > 8 || referenceSize < 1 || referenceSize > 8) return false;
  return tableStart <= trailer && objectCount <= (trailer - tableStart) / offsetSize;
}

std::uint64_t BinaryPropertyList::ReadNumber(std::uint64_t offset, std::uint64_t size) const {
  std::uint64_t number = 0;
  for (const char byte : bytes.substr(offset, size)) {
    number = number << 8 | static_cast<unsigned char>(byte);
  }
  return number;
}

bool BinaryPropertyList::FindOffset(std::uint64_t object, std::uint64_t* offset) const {
  if (object >= objectCount) return false;
  *offset = ReadNumber(tableStart + object * offsetSize, offsetSize);
  return *offset >= kHeaderSize && *offset < tableStart;
}

bool BinaryPropertyList::ReadBody(std::uint64_t offset, Body* body) const {
  const unsigned kind = High(offset);
  const unsigned low = Low(offset);
  *body = {offset + 1, low};
  switch (kind) {
    case kConstant:
      return true;
    case kInteger:
    case kReal:
    case kDate:
      return low <= 4 && tableStart - body->start >= std::uint64_t{1} << low;
    case kIdentifier:
      return tableStart - body->start > low;
    default:
      break;
  }
  const std::uint64_t size = ElementSize(kind);
  if (size == 0 || (low == 0xF && !ReadLongCount(body))) return false;
  return body->count <= (tableStart - body->start) / size;
}

bool BinaryPropertyList::ReadLongCount(Body* body) const {
  if (body->start >= tableStart || High(body->start) != kInteger) return false;
  const unsigned power = Low(body->start);
  ++body->start;
  if (power > 3 || tableStart - body->start < std::uint64_t{1} << power) return false;
  const std::uint64_t size = std::uint64_t{1} << power;
  body->count = ReadNumber(body->start, size);
  body->start += size;
  return true;
}

std::uint64_t BinaryPropertyList::ElementSize(unsigned kind) const {
  switch (kind) {
    case kData:
    case kBytesText:
      return 1;
    case kWideText:
      return 2;
    case kArray:
    case kSet:
      return referenceSize;
    case kDictionary:
      return 2 * referenceSize;
    default:
      return 0;
  }
}

unsigned BinaryPropertyList::High(std::uint64_t offset) const {
  return static_cast<unsigned char>(bytes[offset]) >> 4;
}

unsigned BinaryPropertyList::Low(std::uint64_t offset) const {
  return static_cast<unsigned char>(bytes[offset]) & 0xFU;
}
