#pragma once

#include <cstdint>

/// A file that the program holds in its read-only data, byte for byte. It lives
/// as long as the program and may be read on any thread, also while static
/// objects are built. One zero byte follows the last byte and is not counted in
/// `length`, so a text without zero bytes can be used as a C string.
struct EmbeddedFile {
  const unsigned char* bytes;
  std::uint32_t length;
};
