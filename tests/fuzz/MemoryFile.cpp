#include "tests/fuzz/MemoryFile.h"

#include <sys/mman.h>
#include <unistd.h>

#include "tests/fuzz/Require.h"

MemoryFile::MemoryFile() : file(memfd_create("fuzz", MFD_CLOEXEC)) {
  Require(file >= 0, "there is memory for a file");
  path = "/proc/self/fd/" + std::to_string(file);
}

MemoryFile::~MemoryFile() { close(file); }

void MemoryFile::Write(const std::uint8_t* data, std::size_t size) {
  Resize(0);
  Require(pwrite(file, data, size, 0) == static_cast<ssize_t>(size), "the file can be written");
}

void MemoryFile::Resize(std::uint64_t size) {
  Require(ftruncate(file, static_cast<off_t>(size)) == 0, "the file takes this size");
}
