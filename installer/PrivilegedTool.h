#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "installer/Authorization.h"

/// Starts `tool` as administrator. Returns the status of the launch, 0 on
/// success; it says nothing about how the tool ends. `*pipe` is then a stream of
/// what the tool prints, which the caller owns; on failure it is null.
int RunPrivileged(Authorization& authorization, const std::string& tool,
                  const std::vector<std::string>& arguments, FILE** pipe);

/// Blocks until the tool behind `pipe` has printed a line or ended, and returns
/// the number that the line begins with, to be waited for as a process id: -1
/// when nothing can be read or the number does not even fit a `long`, and
/// otherwise what the platform's atoi makes of the line, also of one without a
/// number or with one of more than 32 bits. A null pipe, that of a tool that
/// could not be started, gives -1 as well. Does not close the pipe.
std::int32_t ReadChildPid(FILE* pipe);
