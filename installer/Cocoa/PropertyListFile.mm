#include "installer/Cocoa/PropertyListFile.h"

#import <Foundation/Foundation.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string_view>
#include <utility>
#include <vector>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "installer/PropertyListGuard.h"

namespace {

/// How far below the root dictionaries still come with their content.
constexpr int kLevelsBelowRoot = 1;

bool ReadAll(int file, std::string* content) {
  std::size_t filled = 0;
  while (filled < content->size()) {
    const ssize_t count = read(file, content->data() + filled, content->size() - filled);
    if (count <= 0) break;
    filled += static_cast<std::size_t>(count);
  }
  return filled == content->size();
}

std::optional<std::string> ReadRegularFile(const std::string& path) {
  // A pipe that lies in a file's place would otherwise block the open.
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return std::nullopt;
  struct stat status {};
  std::string content;
  const bool isRegular = fstat(file, &status) == 0 && S_ISREG(status.st_mode);
  bool isRead = false;
  if (isRegular && static_cast<std::size_t>(status.st_size) <= kLargestPropertyList) {
    content.resize(static_cast<std::size_t>(status.st_size));
    isRead = ReadAll(file, &content);
  }
  close(file);
  if (!isRead) return std::nullopt;
  return content;
}

PropertyValue ConvertDictionary(NSDictionary* dictionary, int levels);

PropertyValue Convert(id value, int levels) {
  if ([value isKindOfClass:[NSString class]]) {
    const char* text = [value UTF8String];
    return text == nullptr ? PropertyValue() : PropertyValue::String(text);
  }
  if ([value isKindOfClass:[NSDictionary class]] && levels > 0) {
    return ConvertDictionary(value, levels - 1);
  }
  return {};
}

/// False when the platform cannot give the text, as with half a surrogate pair.
bool ConvertEntry(NSDictionary* dictionary, id key, int levels, PropertyEntry* entry) {
  @try {
    if (![key isKindOfClass:[NSString class]] || [key UTF8String] == nullptr) return false;
    entry->key = [key UTF8String];
    entry->value = Convert([dictionary objectForKey:key], levels);
    return true;
  } @catch (NSException*) {
    return false;
  }
}

PropertyValue ConvertDictionary(NSDictionary* dictionary, int levels) {
  std::vector<PropertyEntry> entries;
  for (id key in dictionary) {
    PropertyEntry entry;
    if (ConvertEntry(dictionary, key, levels, &entry)) entries.push_back(std::move(entry));
  }
  return PropertyValue::Dictionary(std::move(entries));
}

/// Autoreleased; nil for everything but a dictionary.
NSDictionary* Parse(std::string_view content) {
  @try {
    NSData* data = [NSData dataWithBytes:content.data() length:content.size()];
    id root = [NSPropertyListSerialization propertyListWithData:data
                                                        options:NSPropertyListImmutable
                                                         format:nullptr
                                                          error:nullptr];
    return [root isKindOfClass:[NSDictionary class]] ? root : nil;
  } @catch (NSException*) {
    return nil;
  }
}

}  // namespace

std::optional<PropertyValue> ReadPropertyListFile(const std::string& path) {
  const std::optional<std::string> content = ReadRegularFile(path);
  if (!content) return std::nullopt;
  std::string_view text = *content;
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  if (!IsSafePropertyList(text)) return std::nullopt;
  @autoreleasepool {
    NSDictionary* root = Parse(text);
    if (root == nil) return std::nullopt;
    return ConvertDictionary(root, kLevelsBelowRoot);
  }
}
