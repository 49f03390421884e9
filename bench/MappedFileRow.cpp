#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"
#include "bench/TemporaryFolder.h"
#include "support/MappedFile.h"

namespace {

constexpr int kPairs = 21;
constexpr std::uint64_t kLength = std::uint64_t{1} << 30;

bool MakeFile(const std::string& path) {
  FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) return false;
  std::vector<std::uint64_t> block(1 << 17);
  std::uint64_t number = 1;
  bool isWritten = true;
  for (std::uint64_t length = 0; isWritten && length < kLength;
       length += block.size() * sizeof(number)) {
    for (std::uint64_t& word : block) word = number = number * 6364136223846793005U + 1;
    isWritten = std::fwrite(block.data(), sizeof(number), block.size(), file) == block.size();
  }
  return std::fclose(file) == 0 && isWritten;
}

std::uint64_t Sum(const void* bytes) {
  const auto* words = static_cast<const std::uint64_t*>(bytes);
  std::uint64_t sum = 0;
  for (std::uint64_t i = 0; i < kLength / sizeof(sum); ++i) sum += words[i];
  return sum;
}

std::uint64_t ReadByMappedFile(const std::string& path) {
  const MappedFile file(path, 0, 0, false);
  return file.mapping == nullptr ? 0 : Sum(file.mapping);
}

std::uint64_t ReadByPlainMapping(const std::string& path) {
  const int fd = open(path.c_str(), O_RDONLY);
  void* bytes = mmap(nullptr, kLength, PROT_READ, MAP_SHARED, fd, 0);
  const std::uint64_t sum = bytes == MAP_FAILED ? 0 : Sum(bytes);
  if (bytes != MAP_FAILED) munmap(bytes, kLength);
  close(fd);
  return sum;
}

}  // namespace

bool MeasureMappedFile() {
  const TemporaryFolder folder(TemporaryFolder::MemoryParent());
  const std::string path = folder.GetPath() + "/large";
  if (folder.GetPath().empty() || !MakeFile(path)) {
    std::fputs("The file of 1 GiB could not be written.\n", stderr);
    return false;
  }
  std::uint64_t workSum = 0;
  std::uint64_t referenceSum = 0;
  const PairMedians medians = MeasurePairs(
      kPairs, [&] { return MillisecondsOf([&] { workSum = ReadByMappedFile(path); }); },
      [&] { return MillisecondsOf([&] { referenceSum = ReadByPlainMapping(path); }); });
  if (workSum != referenceSum || workSum == 0) {
    std::fputs("MappedFile and the plain mapping do not read the same.\n", stderr);
    return false;
  }
  PrintRatio("MappedFile reading 1 GiB", "plain mmap", medians, 1.02);
  return true;
}
