#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

/// What the programs started by a test leave behind: processes whose parents have
/// ended. They come to the test program, which is their reaper (AdoptOrphans), so
/// that none can hide from it.
class Orphans {
 public:
  /// Makes this process the one that orphaned descendants come to. Once, first.
  static void Adopt();

  /// Children that the process has now are no orphans.
  Orphans();
  /// Neither is this one.
  void Except(pid_t child) { others.push_back(child); }

  /// The orphans that still run; those that have ended are reaped.
  std::vector<pid_t> List() const;
  /// The names of those that are not GNUstep's own daemons, which stay for the
  /// next program of the session.
  std::vector<std::string> NamesOfStrangers() const;
  /// GNUstep's own daemons among them.
  std::vector<pid_t> Daemons() const;
  /// Ends all of them, and what they leave behind in turn.
  void Kill() const;

 private:
  std::vector<pid_t> others;
};
