#pragma once

/// Status values of `Authorization` where no Authorization Services exist.
/// The numbers are macOS's own, so that a status means the same everywhere.
inline constexpr int kAuthorizationSuccess = 0;
/// No rights were obtained before, or they have been given up.
inline constexpr int kAuthorizationInvalidReference = -60002;
/// A right that nothing on this system can grant.
inline constexpr int kAuthorizationDenied = -60005;
/// The user dismissed the question or is no administrator.
inline constexpr int kAuthorizationCanceled = -60006;
/// A pipe or a stream could not be made.
inline constexpr int kAuthorizationInternal = -60008;
/// The tool, or the helper that would run it, can not be started.
inline constexpr int kAuthorizationToolExecuteFailure = -60031;
/// The tool is not run with such arguments, or the request can not be understood.
inline constexpr int kAuthorizationToolEnvironmentError = -60032;
