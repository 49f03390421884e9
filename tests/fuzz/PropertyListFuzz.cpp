// Property-list files, from their bytes to the hosts that are detected in them.

#include <cstdint>
#include <memory>

#include "installer/Cocoa/PropertyListFile.h"
#include "installer/HostDetection.h"
#include "tests/fuzz/FuzzApplication.h"
#include "tests/fuzz/MemoryFile.h"
#include "tests/fuzz/Require.h"

namespace {

/// A machine on which every property list is the same file.
class OneFile : public HostSources {
 public:
  explicit OneFile(std::string filePath) : path(std::move(filePath)) {}

  std::optional<std::string> MarkerDocument() override { return "/AEFile.aep"; }
  std::optional<std::vector<std::string>> ApplicationsForDocument(const std::string&) override {
    return std::vector<std::string>{"/Hosts/After Effects.app"};
  }
  std::optional<PropertyValue> ReadDictionary(const std::string&) override {
    return ReadPropertyListFile(path);
  }
  std::string PreferenceFile() override { return path; }

 private:
  std::string path;
};

void RequireTexts(const PropertyValue& value, int levels) {
  if (const std::string* text = value.AsString()) {
    Require(FuzzApplication::IsUtf8(*text), "every text is UTF-8");
  }
  Require(levels >= 0 || value.Entries().empty(), "what nests deeper comes without content");
  for (const PropertyEntry& entry : value.Entries()) {
    Require(FuzzApplication::IsUtf8(entry.key), "every key is UTF-8");
    RequireTexts(entry.value, levels - 1);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MemoryFile file;
  file.Write(data, size);
  FuzzApplication::WithPool([] {
    const std::optional<PropertyValue> root = ReadPropertyListFile(file.path);
    if (root) {
      Require(root->IsDictionary(), "the file holds a dictionary or nothing");
      RequireTexts(*root, 1);
    }
    OneFile sources(file.path);
    InstallerState state;
    DetectHosts(sources, state);
    for (const std::size_t slot : {0U, 1U, 14U}) {
      Require(state.hostPath.at(slot).empty(), "these slots are never detected");
    }
    if (!root) {
      for (const std::string& path : state.hostPath) Require(path.empty(), "nothing gives nothing");
    }
  });
  return 0;
}
