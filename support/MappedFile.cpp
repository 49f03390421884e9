#include "support/MappedFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

static_assert(sizeof(off_t) == 8 && sizeof(std::size_t) == 8, "files of any size can be mapped");

namespace {

constexpr mode_t kOpenToAll = 0777;

std::uint64_t SizeOf(int fd) {
  struct stat info {};
  if (fstat(fd, &info) != 0) return 0;
  return static_cast<std::uint64_t>(info.st_size);
}

}  // namespace

MappedFile::MappedFile(const std::string& path, std::int32_t writableFlag,
                       std::uint64_t wantedLength, bool deferMap)
    : writable(writableFlag) {
  fd = open(path.c_str(), writable ? O_RDWR | O_CREAT : O_RDONLY, kOpenToAll);
  if (fd == -1) return;
  // The mode given to open is subject to the process's mask; a shared file must not be. A file of
  // another owner keeps its mode and can be used all the same.
  if (writable) fchmod(fd, kOpenToAll);
  isOpen = true;
  length = wantedLength != 0 ? wantedLength : SizeOf(fd);
  if (length == 0 || !ReserveLength()) {
    Close();
    return;
  }
  if (!deferMap) Map(0, length);
}

MappedFile::~MappedFile() { Close(); }

bool MappedFile::ReserveLength() {
  if (!writable || SizeOf(fd) >= length) return true;
  return ftruncate(fd, static_cast<off_t>(length)) == 0;
}

std::uint64_t MappedFile::Map(std::uint64_t offset, std::uint64_t size) {
  if (fd == -1) return 0;
  Unmap();
  const auto page = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
  const std::uint64_t lead = offset % page;
  const std::uint64_t start = offset - lead;
  mappedSize = size + lead;
  // A size that wraps around would map a few bytes and pass for success.
  void* mapped = MAP_FAILED;
  if (mappedSize >= size) {
    mapped = mmap(nullptr, mappedSize, writable ? PROT_READ | PROT_WRITE : PROT_READ, MAP_SHARED,
                  fd, static_cast<off_t>(start));
  }
  if (mapped == MAP_FAILED) {
    Close();
  } else {
    mapping = static_cast<std::uint8_t*>(mapped);
  }
  return start;
}

void MappedFile::Close() {
  Unmap();
  if (fd != -1) close(fd);
  fd = -1;
  length = 0;
}

void MappedFile::Unmap() {
  if (mapping) munmap(mapping, mappedSize);
  mapping = nullptr;
}
