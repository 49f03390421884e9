// The filter text of a file dialog.

#include <cctype>
#include <cstdint>
#include <string>

#include "Src/HXUI/FileTypeFilter.h"
#include "tests/fuzz/Require.h"

namespace {

std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

void RequireTypesOf(const std::string& filter, const std::vector<std::string>& types) {
  Require(types.size() % 2 == 0, "each type comes in two spellings");
  for (std::size_t i = 0; i < types.size(); i += 2) {
    Require(filter.find("." + types[i]) != std::string::npos, "a type is in the text, dotted");
    Require(types[i + 1] == Upper(types[i]), "the second spelling is the upper-case one");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string filter(data, data + size);
  RequireTypesOf(filter, FileTypeFilter::TypesToOpen(filter));
  RequireTypesOf(filter, FileTypeFilter::TypesToSave(filter));
  const bool hasObj = filter.find(".obj") != std::string::npos;
  Require(FileTypeFilter::TypesToSave(filter).size() == (hasObj ? 2U : 0U), "only obj is saved");
  return 0;
}
