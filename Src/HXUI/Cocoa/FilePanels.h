#pragma once

#include <string>
#include <vector>

/// The platform's file dialogs. Each runs application-modally until the user
/// has decided. `prompt` is what the dialog's default button says; an empty
/// one leaves the button as it is. A start directory that is null, empty or not
/// there leaves the dialog where the platform opens it. A `filter` is as in
/// FileTypeFilter.h; null allows every file. Texts and paths in UTF-8, the
/// returned ones absolute. Main thread only.

/// A folder, possibly one that the user has just created; empty when cancelled.
std::string ChooseFolder(const std::string& prompt, const std::string& startDirectory);

/// Where to save; the file may exist already. The platform adds an extension
/// of the filter's when the name has none; a filter without a known type
/// leaves the name as it is typed. Empty when cancelled.
std::string ChooseSaveFile(const std::string& prompt, const char* startDirectory,
                           const char* filter);

/// Existing files, in the dialog's order. A filter without a known type allows
/// no file. Empty when cancelled.
std::vector<std::string> ChooseOpenFiles(const std::string& prompt, const char* startDirectory,
                                         const char* filter, bool allowMultiple);
