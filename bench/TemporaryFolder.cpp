#include "bench/TemporaryFolder.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

TemporaryFolder::TemporaryFolder(const std::string& parent)
    : path(parent + "/ostrel-bench.XXXXXX") {
  if (mkdtemp(path.data()) != nullptr) return;
  std::perror(path.c_str());
  path.clear();
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  if (!path.empty()) std::filesystem::remove_all(path, ignored);
}

std::string TemporaryFolder::SystemParent() {
  const char* folder = std::getenv("TMPDIR");
  return folder != nullptr && *folder != '\0' ? folder : "/tmp";
}

std::string TemporaryFolder::MemoryParent() {
  return access("/dev/shm", W_OK) == 0 ? "/dev/shm" : SystemParent();
}
