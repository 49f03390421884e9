#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// The skeleton of a property list in the binary form: objects, a table of
/// their offsets, and a trailer that describes the table. Only looks at `bytes`,
/// which must outlive it; makes no values. Any one thread.
class BinaryPropertyList {
 public:
  explicit BinaryPropertyList(std::string_view content) : bytes(content) {}

  /// Whether `content` claims to be of this form.
  static bool HasMagic(std::string_view content);

  /// Whether everything that the root leads to lies within the file and a
  /// reader that follows every reference meets at most `mostObjects` objects,
  /// at most `mostNesting` deep. Takes time in proportion to `mostObjects`.
  bool IsSafe(std::size_t mostObjects, std::size_t mostNesting);

 private:
  struct Visit {
    std::uint64_t object;
    std::size_t depth;
  };
  /// The part of an object behind its first byte.
  struct Body {
    std::uint64_t start;
    std::uint64_t count;
  };

  bool ReadTrailer();
  /// The `size` bytes at `offset` as one number, highest byte first.
  std::uint64_t ReadNumber(std::uint64_t offset, std::uint64_t size) const;
  bool FindOffset(std::uint64_t object, std::uint64_t* offset) const;
  bool ReadBody(std::uint64_t offset, Body* body) const;
  bool ReadLongCount(Body* body) const;
  std::uint64_t ElementSize(unsigned kind) const;
  unsigned High(std::uint64_t offset) const;
  unsigned Low(std::uint64_t offset) const;

  std::string_view bytes;
  std::uint64_t offsetSize = 0;
  std::uint64_t referenceSize = 0;
  std::uint64_t objectCount = 0;
  std::uint64_t rootObject = 0;
  std::uint64_t tableStart = 0;
};
