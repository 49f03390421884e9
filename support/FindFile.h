#pragma once

#include <string>

/// The path of the first file called `name` in `folder` or below it, or the
/// empty string. `folder` ends with "/"; anything that exists counts as a file.
///
/// A folder is asked for the name before its subfolders are searched, in the
/// order in which the file system lists them, depth first. Started at `depth` 0
/// the search goes at most three levels below `folder`; `depth` 3 asks only the
/// folder itself. Subfolders behind links are not entered, nor those of a file
/// system that does not tell entry types. Time grows with the number of entries
/// listed. Any thread.
std::string FindFile(const std::string& folder, const std::string& name, int depth = 0);
