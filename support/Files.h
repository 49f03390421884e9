#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

/// Single calls to the file system with UTF-8 paths. Symbolic links are
/// followed, except by DeleteFile. Nothing is reported beyond the result; where
/// that is the system's own, errno says why. All calls may be made on any thread.

/// Something exists at `path`, readable or not. False for a link to nothing.
bool FileExists(const std::string& path);

/// Size in bytes; 0 when `path` cannot be examined.
std::uint64_t GetFileSize(const std::string& path);

/// Time of the last modification, in whole seconds since 1970 (UTC) times 1000;
/// 0 when `path` cannot be examined.
double GetFileTimeMs(const std::string& path);

/// Creates one folder, open to everyone as far as the process's file mode mask
/// allows. Returns 0, or -1 on failure; a folder that exists already is one.
int MakeDir(const std::string& path);

/// Opens a stream as fopen does; null on failure. The caller closes it.
FILE* OpenFile(const std::string& path, const char* mode);

/// Removes the file or the link itself, never a folder. Returns 0, or -1 on failure.
int DeleteFile(const std::string& path);
