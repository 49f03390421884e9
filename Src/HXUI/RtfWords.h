#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The control words of an RTF document: a backslash, letters, and perhaps a
/// number, as "\fs24". Any thread.
namespace RtfWords {

/// What stands in place of a word and its number; nothing leaves both. `word` is
/// without its backslash, `number` empty where there is none, and `after` all of
/// the document behind them.
using Substitute = std::function<std::optional<std::string>(
    std::string_view word, std::string_view number, std::string_view after)>;

/// The document with other words in it; everything else stays as it is.
std::string Replace(std::string_view rtf, const Substitute& substitute);

}  // namespace RtfWords
