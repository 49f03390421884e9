#pragma once

#include <string>
#include <vector>

#include "installer/GNUstep/HelperDescriptor.h"

/// Starts the root helper as a process that is nobody's child here.
///
/// The installation run waits for "any child", which must never be the helper;
/// and pkexec serves only a process whose parent is alive. So a process between
/// the two becomes the helper's parent: it belongs to init, holds no descriptor
/// of the installer, and ends with the helper.
class HelperLauncher {
 public:
  /// `launcher` is a program by its absolute path with its first arguments, to
  /// which the helper's path is appended; empty starts the helper itself.
  /// `helperPath` is absolute.
  HelperLauncher(std::vector<std::string> launcher, std::string helperPath);

  /// What the installer uses: the helper in the folder of the running program,
  /// started directly by root and through pkexec by everybody else.
  static HelperLauncher ForThisProcess();

  /// Whether somebody is asked before the helper runs.
  bool Asks() const { return command.size() > 1; }

  /// Starts the helper and returns the installer's end of the socket, which is
  /// the helper's standard input, without waiting for the helper. Nothing is
  /// returned when a program is missing or no process can be made. A failure
  /// that comes later, for example a refusal of pkexec, shows as the end of the
  /// socket. May be called on any thread.
  HelperDescriptor Start() const;

 private:
  std::vector<std::string> command;
};
