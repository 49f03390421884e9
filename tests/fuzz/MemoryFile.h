#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// A regular file that exists in memory only and ends with this object.
class MemoryFile {
 public:
  MemoryFile();
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  /// Replaces the content.
  void Write(const std::uint8_t* data, std::size_t size);
  void Resize(std::uint64_t size);

  /// Where this process can open it.
  std::string path;

 private:
  int file;
};
