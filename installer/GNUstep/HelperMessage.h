#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One message between the installer and its root helper: a kind and a few words.
///
/// On the wire it is one record: the four bytes "OIH1" (the last one is the
/// version), one byte for the kind, one byte for the number of words, then the
/// words, each ended by a zero byte, and nothing after the last one. A record
/// that differs in any way is no message.
class HelperMessage {
 public:
  enum class Kind : char {
    kHello = 'H',    ///< From the helper, once: it runs and will serve. No words.
    kRequest = 'R',  ///< To the helper: a tool's absolute path, then its arguments.
    kAnswer = 'A',   ///< From the helper, one per record it received: the status in decimal.
  };

  /// Longest record, in bytes, that either side sends or takes.
  static constexpr std::size_t kMaxBytes = 64 * 1024;
  /// Most words in one message.
  static constexpr std::size_t kMaxWords = 16;

  HelperMessage() = default;
  HelperMessage(Kind kind, std::vector<std::string> words);

  /// The answer that carries `status`.
  static HelperMessage Answer(int status);
  /// The status that this answer carries; nothing if this is no well-formed answer.
  std::optional<int> Status() const;

  /// The record; nothing when a word holds a zero byte or a limit is passed.
  std::optional<std::string> Encode() const;
  /// The message in `record`; nothing unless it is exactly one well-formed message.
  static std::optional<HelperMessage> Decode(std::string_view record);

  Kind kind = Kind::kHello;
  std::vector<std::string> words;
};
