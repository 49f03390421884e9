#include "Src/HXUI/HXFloatFormat.h"

#include <locale.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#ifdef __APPLE__
#include <xlocale.h>
#endif

namespace {

/// Numbers this close to 0 from below would show as "-0.0".
constexpr float kNegativeZeroBound = -1.1920929e-7F;

/// The C library's conversions without the user's decimal comma, for this
/// thread and as long as it lives.
class PlainNumbers {
 public:
  PlainNumbers() : plain(newlocale(LC_ALL_MASK, "C", nullptr)), previous(uselocale(plain)) {}
  ~PlainNumbers() {
    uselocale(previous);
    if (plain != nullptr) freelocale(plain);
  }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;

 private:
  locale_t plain;
  locale_t previous;
};

std::string FormatDecimals(float value, int decimals) {
  const PlainNumbers plain;
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.*f", decimals, static_cast<double>(value));
  return text.data();
}

std::string FormatInteger(float value) {
  constexpr double kLowest = std::numeric_limits<int>::min();
  constexpr double kHighest = std::numeric_limits<int>::max();
  if (std::isnan(value)) return "0";
  return std::to_string(
      static_cast<int>(std::clamp(static_cast<double>(value), kLowest, kHighest)));
}

/// Also defined where a plain conversion is not.
float ToFloat(double number) {
  constexpr double kHighest = std::numeric_limits<float>::max();
  if (number > kHighest) return std::numeric_limits<float>::infinity();
  if (number < -kHighest) return -std::numeric_limits<float>::infinity();
  return static_cast<float>(number);
}

float WithoutNegativeZero(float value) {
  return value >= kNegativeZeroBound && value <= 0 ? 0.0F : value;
}

}  // namespace

const char* HXFloatFormat::Unit() const {
  switch (code) {
    case kAngle:
    case kDegrees:
    case kDegreesToo:
      return "º";
    case kPercent:
    case kFraction:
      return "%";
    default:
      return "";
  }
}

std::string HXFloatFormat::NumberText(float value) const {
  const float shown = WithoutNegativeZero(value);
  switch (code) {
    case kInteger:
      return FormatInteger(shown);
    case kTwoDecimals:
      return FormatDecimals(shown, 2);
    case kFraction:
      return FormatDecimals(shown * 100.0F, 1);
    default:
      return FormatDecimals(shown, 1);
  }
}

std::string HXFloatFormat::ShownText(float value) const { return NumberText(value) + Unit(); }

std::string HXFloatFormat::EditorText(float value) const {
  if (code == kTwoDecimals) return FormatDecimals(WithoutNegativeZero(value), 3);
  return NumberText(value);
}

std::optional<float> HXFloatFormat::Parse(const std::string& text) const {
  std::string pointed = text;
  std::replace(pointed.begin(), pointed.end(), ',', '.');
  const PlainNumbers plain;
  char* end = nullptr;
  errno = 0;
  double number = std::strtod(pointed.c_str(), &end);
  if (end == pointed.c_str() || errno == ERANGE) return std::nullopt;
  if (code == kFraction) number /= 100;
  return ToFloat(number);
}
