#pragma once

#include <string>

/// Path of the resource `name` of type `type` in the program's own bundle, for
/// example "AEFile" of type "aep"; empty when the bundle has no such resource.
/// Any thread.
std::string FindBundleResource(const std::string& name, const std::string& type);
