#pragma once

#include <cstdint>
#include <string>

/// A file, or a window of it, mapped into memory for reading or for reading and
/// writing. Owns one descriptor and at most one mapping; both end with it. Use
/// one object on one thread at a time, any thread.
///
/// Nothing is reported: callers test `mapping`. The fields are for reading;
/// only the object itself changes them.
class MappedFile {
 public:
  /// Opens `path`. When `writableFlag` is not 0 a missing file is created, the
  /// file is opened to all users, and it is extended to `wantedLength` bytes if
  /// shorter; a file that cannot be extended is closed. `wantedLength` 0 stands
  /// for the file's size; an empty file is then closed at once. Maps the whole
  /// length unless `deferMap` is set.
  ///
  /// A file opened for reading is never extended: touching the pages of the
  /// mapping that lie behind the file's end is a memory fault.
  MappedFile(const std::string& path, std::int32_t writableFlag, std::uint64_t wantedLength,
             bool deferMap);
  ~MappedFile();
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  /// Maps `size` bytes from byte `offset` on, in place of the mapping there was.
  /// Returns the start of the page of `offset`; the data then lies at `mapping`
  /// plus `offset` minus that value. Returns 0 and does nothing when the file is
  /// closed. A mapping that fails closes the file and leaves `mapping` null; the
  /// returned value then means nothing.
  std::uint64_t Map(std::uint64_t offset, std::uint64_t size);

  /// Ends the mapping and closes the file. May be called again.
  void Close();

  /// Start of the mapping, always at a page; null when there is none.
  std::uint8_t* mapping = nullptr;
  /// The length in use in bytes; 0 when closed.
  std::uint64_t length = 0;
  /// The flag given at construction.
  std::int32_t writable = 0;
  /// The file could be opened. Stays set when it is closed again.
  bool isOpen = false;
  /// -1 when closed.
  std::int32_t fd = -1;
  /// Bytes of the latest mapping, those between the page's start and `offset` included.
  std::uint64_t mappedSize = 0;

 private:
  void Unmap();
  bool ReserveLength();
};
