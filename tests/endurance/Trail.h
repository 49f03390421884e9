#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The latest events, kept for the case that one of them ends the program: the
/// sanitizer then prints them, the last one at the bottom. One per process.
class Trail {
 public:
  struct Step {
    std::uint64_t number = 0;
    const char* action = "";
    /// The type of the widget that it was meant for; the compiler's own name.
    const char* widget = "";
    int x = 0;
    int y = 0;
    /// The key, the button or whatever belongs to the action.
    unsigned detail = 0;
  };

  explicit Trail(std::uint64_t seed);
  ~Trail();
  Trail(const Trail&) = delete;
  Trail& operator=(const Trail&) = delete;

  void Add(const Step& step) {
    steps[step.number % steps.size()] = step;
    last = step.number;
  }
  /// To standard error.
  void Print() const;

 private:
  std::array<Step, 40> steps{};
  std::uint64_t last = 0;
  std::uint64_t seed;
};
