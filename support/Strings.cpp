#include "support/Strings.h"

#include <cstdarg>
#include <cstdio>

static_assert(sizeof(wchar_t) == 4, "wide strings hold whole UTF-32 characters");

namespace {

/// A UTF-8 character's first byte: how many bytes follow, the bits that it gives to the
/// character, and the smallest character that needs so many bytes.
struct LeadByte {
  int followers;
  char32_t bits;
  char32_t smallest;
};

constexpr LeadByte kInvalidLead{-1, 0, 0};

LeadByte ReadLeadByte(unsigned char byte) {
  if (byte < 0x80) return {0, byte, 0};
  if ((byte & 0xE0) == 0xC0) return {1, byte & 0x1FU, 0x80};
  if ((byte & 0xF0) == 0xE0) return {2, byte & 0x0FU, 0x800};
  if ((byte & 0xF8) == 0xF0) return {3, byte & 0x07U, 0x10000};
  return kInvalidLead;
}

bool IsCharacter(char32_t value) {
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  return value <= 0x10FFFF && !surrogate;
}

/// Reads one character and moves `*position` behind it; false when it is not valid. A text cut
/// short is noticed at its terminating zero, which is no following byte.
bool ReadCharacter(const char** position, char32_t* character) {
  const LeadByte lead = ReadLeadByte(static_cast<unsigned char>(*(*position)++));
  char32_t value = lead.bits;
  for (int i = 0; i < lead.followers; ++i) {
    const auto byte = static_cast<unsigned char>(**position);
    if ((byte & 0xC0) != 0x80) return false;
    value = (value << 6) | (byte & 0x3FU);
    ++*position;
  }
  *character = value;
  return lead.followers >= 0 && value >= lead.smallest && IsCharacter(value);
}

}  // namespace

std::string MakeString(const char* text) { return text ? std::string(text) : std::string(); }

std::wstring ToWide(const std::string& text) {
  std::wstring wide;
  wide.reserve(text.size());
  const char* position = text.c_str();
  while (*position != '\0') {
    char32_t character = 0;
    if (!ReadCharacter(&position, &character)) return {};
    wide.push_back(static_cast<wchar_t>(character));
  }
  return wide;
}

void PrintLine(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  vprintf(format, arguments);
  va_end(arguments);
  putchar('\n');
}
