#include "support/Files.h"

#include <sys/stat.h>
#include <unistd.h>

bool FileExists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

std::uint64_t GetFileSize(const std::string& path) {
  struct stat info {};
  if (stat(path.c_str(), &info) != 0) return 0;
  return static_cast<std::uint64_t>(info.st_size);
}

double GetFileTimeMs(const std::string& path) {
  struct stat info {};
  if (stat(path.c_str(), &info) != 0) return 0.0;
  return static_cast<double>(info.st_mtime) * 1000.0;
}

int MakeDir(const std::string& path) { return mkdir(path.c_str(), 0777); }

FILE* OpenFile(const std::string& path, const char* mode) { return fopen(path.c_str(), mode); }

int DeleteFile(const std::string& path) { return unlink(path.c_str()); }
