#pragma once

/// Ends the program over a programming error: prints the function, the
/// condition and the source path to standard error, then aborts. Also in
/// release builds.
[[noreturn]] void HXAssertFailed(const char* function, const char* condition, const char* source,
                                 int line);
