#pragma once

#include <string>

/// Paths as texts: nothing here looks at the file system. All calls may be made
/// on any thread.

/// False for a path that starts with "/" and for one of at least three
/// characters that starts like a drive, such as "C:/x"; true for every other
/// path, "C:" and the empty one among them.
bool IsRelativePath(const std::string& path);

/// Rewrites `path` in place so that no two "/" follow each other. Takes time in
/// proportion to the length of the path.
void CollapseSlashes(std::string& path);

/// The part from the last "." to the end, dot included, in lower case (single
/// bytes, as tolower has it); empty when the path has no ".". The last "." counts
/// wherever it stands, so "v1.2/README" gives ".2/readme".
std::string GetExtension(const std::string& path);

/// `folder` and `name` with exactly one "/" between them, whatever separators
/// `folder` ends with or `name` begins with. When one of them is empty the
/// result is the other one, so that an unknown folder never becomes the root.
std::string JoinPath(const std::string& folder, const std::string& name);
