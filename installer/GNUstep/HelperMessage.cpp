#include "installer/GNUstep/HelperMessage.h"

#include <charconv>
#include <system_error>
#include <utility>

namespace {

constexpr std::string_view kMagic = "OIH1";
constexpr std::size_t kHeaderBytes = kMagic.size() + 2;

std::optional<HelperMessage::Kind> KindOf(char byte) {
  for (const auto kind :
       {HelperMessage::Kind::kHello, HelperMessage::Kind::kRequest, HelperMessage::Kind::kAnswer}) {
    if (byte == static_cast<char>(kind)) {
      return kind;
    }
  }
  return std::nullopt;
}

}  // namespace

HelperMessage::HelperMessage(Kind kind, std::vector<std::string> words)
    : kind(kind), words(std::move(words)) {}

HelperMessage HelperMessage::Answer(int status) {
  return HelperMessage(Kind::kAnswer, {std::to_string(status)});
}

std::optional<int> HelperMessage::Status() const {
  if (kind != Kind::kAnswer || words.size() != 1) {
    return std::nullopt;
  }
  const std::string& text = words.front();
  int status = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), status);
  if (error != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return status;
}

std::optional<std::string> HelperMessage::Encode() const {
  if (words.size() > kMaxWords) {
    return std::nullopt;
  }
  std::string record(kMagic);
  record.push_back(static_cast<char>(kind));
  record.push_back(static_cast<char>(words.size()));
  for (const std::string& word : words) {
    if (word.find('\0') != std::string::npos) {
      return std::nullopt;
    }
    record.append(word);
    record.push_back('\0');
  }
  if (record.size() > kMaxBytes) {
    return std::nullopt;
  }
  return record;
}

std::optional<HelperMessage> HelperMessage::Decode(std::string_view record) {
  if (record.size() < kHeaderBytes || record.size() > kMaxBytes ||
      record.substr(0, kMagic.size()) != kMagic) {
    return std::nullopt;
  }
  const auto kind = KindOf(record[kMagic.size()]);
  const std::size_t count = static_cast<unsigned char>(record[kMagic.size() + 1]);
  if (!kind || count > kMaxWords) {
    return std::nullopt;
  }
  record.remove_prefix(kHeaderBytes);
  std::vector<std::string> words;
  while (words.size() < count) {
    const std::size_t end = record.find('\0');
    if (end == std::string_view::npos) {
      return std::nullopt;
    }
    words.emplace_back(record.substr(0, end));
    record.remove_prefix(end + 1);
  }
  if (!record.empty()) {
    return std::nullopt;
  }
  return HelperMessage(*kind, std::move(words));
}
