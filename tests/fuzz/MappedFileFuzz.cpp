// Windows of mapped files, with offsets, sizes and lengths of all 64 bits.

#include <fuzzer/FuzzedDataProvider.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <limits>

#include "support/Files.h"
#include "support/MappedFile.h"
#include "tests/fuzz/MemoryFile.h"
#include "tests/fuzz/Require.h"

namespace {

/// More than that is not filled with bytes; the file then has a hole.
constexpr std::uint64_t kFilled = 3 * 4096 + 100;

std::uint8_t ByteAt(std::uint64_t offset) { return static_cast<std::uint8_t>(offset * 7 + 3); }

void Fill(MemoryFile& memory) {
  std::uint8_t bytes[kFilled];
  for (std::uint64_t i = 0; i < kFilled; ++i) bytes[i] = ByteAt(i);
  memory.Write(bytes, kFilled);
}

/// Numbers near the ends of powers of two are the interesting ones.
std::uint64_t PickNumber(FuzzedDataProvider& input) {
  if (input.ConsumeBool()) return input.ConsumeIntegral<std::uint64_t>();
  const std::uint64_t power = std::uint64_t{1} << input.ConsumeIntegralInRange(0, 63);
  return power + input.ConsumeIntegral<std::uint8_t>() - 128;
}

void RequireClosed(const MappedFile& file) {
  Require(file.mapping == nullptr && file.length == 0 && file.fd == -1, "it is closed altogether");
}

/// Reads the file's own bytes through the window, as far as they reach.
void RequireContent(const MappedFile& file, std::uint64_t start, std::uint64_t fileSize) {
  const std::uint64_t end = std::min({start + file.mappedSize, fileSize, kFilled});
  for (std::uint64_t at = start; at < end; at += 97) {
    Require(file.mapping[at - start] == ByteAt(at), "the window shows the file at its offset");
  }
}

void MapWindow(MappedFile& file, std::uint64_t offset, std::uint64_t size,
               const std::string& path) {
  const bool wasOpen = file.fd != -1;
  const std::uint64_t start = file.Map(offset, size);
  if (!wasOpen) {
    Require(start == 0, "a closed file maps nothing");
    RequireClosed(file);
    return;
  }
  if (file.mapping == nullptr) {
    RequireClosed(file);
    return;
  }
  const auto page = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
  Require(start % page == 0 && start <= offset && offset - start < page, "it starts at the page");
  Require(file.mappedSize == size + (offset - start), "the lead-in counts");
  Require(file.mappedSize >= size, "no size wraps around");
  RequireContent(file, start, GetFileSize(path));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  static MemoryFile memory;
  Fill(memory);
  const bool writable = input.ConsumeBool();
  const bool deferred = input.ConsumeBool();
  const std::uint64_t length = PickNumber(input);
  MappedFile file(memory.path, writable ? 1 : 0, length, deferred);
  if (file.fd == -1) {
    RequireClosed(file);
  } else {
    Require(file.length == (length == 0 ? kFilled : length), "the length in use is the wanted one");
    Require((file.mapping == nullptr) == deferred, "it is mapped unless that is put off");
    if (writable)
      Require(GetFileSize(memory.path) >= file.length, "a writable file is long enough");
  }
  while (input.remaining_bytes() > 0) {
    if (input.ConsumeIntegral<std::uint8_t>() == 0) file.Close();
    const std::uint64_t offset = PickNumber(input);
    MapWindow(file, offset, PickNumber(input), memory.path);
  }
  return 0;
}
