#pragma once

#include <string>

/// The fields of an RTF document, which hold an instruction, such as where a
/// link leads to, and the text that it gives. Any thread.
namespace RtfFields {

/// The document with the word that begins a field made unknown wherever the
/// instruction is not a plain text: one of the platforms falls over such a
/// field. Its result then stays as ordinary text. Everything else stays as it is.
std::string DisarmUnusual(const std::string& rtf);

}  // namespace RtfFields
