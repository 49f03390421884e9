#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

/// Chance that can be repeated: the same seed gives the same throws, with every
/// standard library.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine(seed) {}

  /// From 0 to `limit` - 1; `limit` is at least 1.
  std::uint32_t Below(std::size_t limit) { return static_cast<std::uint32_t>(engine() % limit); }
  /// From `lowest` to `highest`, both included.
  int Between(int lowest, int highest) {
    return lowest + static_cast<int>(Below(static_cast<std::size_t>(highest - lowest + 1)));
  }
  /// True once in `count` throws.
  bool OnceIn(std::size_t count) { return Below(count) == 0; }

 private:
  std::mt19937_64 engine;
};
