#pragma once

#include <sys/types.h>

#include <map>
#include <string>

/// What stands in a folder: for each path in it ("" is the folder itself) the
/// kind, the permission bits and the content, or the target of a link. Two of
/// them compare equal when nobody can tell the folders apart by looking.
using Tree = std::map<std::string, std::string>;

/// The tree at `folder`; empty when nothing is there.
Tree ReadTree(const std::string& folder);

/// The same tree after all its files and folders were given the permissions `mode`.
Tree WithMode(const Tree& tree, mode_t mode);

/// A test fails with a difference between the two, and not with all their bytes.
std::string DescribeDifference(const Tree& expected, const Tree& actual);
