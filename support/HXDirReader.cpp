#include "support/HXDirReader.h"

namespace {

constexpr unsigned kDirectoryBit = 1U << 2;

}  // namespace

HXDirReader::HXDirReader(const std::string& path) : directory(opendir(path.c_str())) {}

HXDirReader::~HXDirReader() {
  if (directory) closedir(directory);
}

bool HXDirReader::Next() {
  entry = directory ? readdir(directory) : nullptr;
  if (!entry) {
    isDirectory = 0;
    name.clear();
    return false;
  }
  isDirectory = (entry->d_type & kDirectoryBit) != 0 ? 1 : 0;
  name = entry->d_name;
  return true;
}
