#include "Src/HXUI/FileTypeFilter.h"

#include <span>

namespace {

struct FileType {
  const char* dotted;
  const char* lower;
  const char* upper;
};

constexpr FileType kToOpen[] = {
    {".c4d", "c4d", "C4D"}, {".obj", "obj", "OBJ"}, {".e3d", "e3d", "E3D"},
    {".png", "png", "PNG"}, {".jpg", "jpg", "JPG"}, {".exr", "exr", "EXR"},
    {".hdr", "hdr", "HDR"}, {".pic", "pic", "PIC"}, {".dds", "dds", "DDS"},
};
constexpr FileType kToSave[] = {{".obj", "obj", "OBJ"}};

std::vector<std::string> TypesIn(const std::string& filter, std::span<const FileType> known) {
  std::vector<std::string> types;
  for (const FileType& type : known) {
    if (filter.find(type.dotted) == std::string::npos) continue;
    types.emplace_back(type.lower);
    types.emplace_back(type.upper);
  }
  return types;
}

}  // namespace

std::vector<std::string> FileTypeFilter::TypesToOpen(const std::string& filter) {
  return TypesIn(filter, kToOpen);
}

std::vector<std::string> FileTypeFilter::TypesToSave(const std::string& filter) {
  return TypesIn(filter, kToSave);
}
