#pragma once

#include <dirent.h>

#include <cstdint>
#include <string>

/// Reads the entries of one directory, one after another, in the file system's
/// order and with "." and ".." among them. Owns the open directory and closes it
/// when destroyed. Use one reader on one thread at a time, any thread.
class HXDirReader {
 public:
  /// Opens `path`. Never fails: a directory that cannot be opened has no entries.
  explicit HXDirReader(const std::string& path);
  ~HXDirReader();
  HXDirReader(const HXDirReader&) = delete;
  HXDirReader& operator=(const HXDirReader&) = delete;

  /// Moves to the next entry and fills the fields from it. False at the end and
  /// when the directory is not open; there is then no current entry.
  bool Next();

  /// Bit 2 of the current entry's type code, as 0 or 1: set for directories, and
  /// also for the codes of sockets, whiteouts and block devices, which share
  /// the bit. A link to a directory is not one, nor is an entry whose type the
  /// file system leaves unsaid.
  std::uint8_t isDirectory = 0;
  /// Always 0.
  std::uint8_t reserved = 0;
  /// The current entry's name without its folder, byte for byte.
  std::string name;
  /// Null when the directory could not be opened.
  DIR* directory = nullptr;
  /// The current entry, owned by the directory; null when there is none.
  const dirent* entry = nullptr;
};
