#pragma once

#include <cstdio>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "installer/InstallationWorld.h"
#include "installer/InstallerState.h"

/// A pretend machine that notes every call of an installation run, with the
/// status members at that moment, in `log`. What it answers is set by members.
class RecordingWorld : public InstallationWorld {
 public:
  explicit RecordingWorld(const InstallerState& observed) : state(observed) {}
  /// Closes the pipes that the run left open.
  ~RecordingWorld() override;

  std::unique_ptr<Authorization> MakeAuthorization() override;
  std::string ResourcePath(const std::string& name, const std::string& type) override;
  std::string DataPath(std::int32_t kind) override;
  bool PathExists(const std::string& path) override;
  bool HasEnvironment(const std::string& name) override;
  void WaitForChild(std::int32_t pid) override;
  void RequestRedraw() override;

  void Note(const std::string& call);
  /// The pipe of a tool that printed `toolOutput` and ended.
  FILE* MakePipe();
  /// How many of the pipes handed out are still open.
  std::size_t CountOpenPipes() const;

  std::vector<std::string> log;

  int createStatus = 0;
  int rightsStatus = 0;
  /// Status of the launch of a tool with its first argument.
  std::function<int(const std::string& tool, const std::string& firstArgument)> launchStatus;
  std::string toolOutput;
  std::set<std::string> existing;
  std::set<std::string> environment;
  bool hasResources = true;

 private:
  const InstallerState& state;
  /// By descriptor. The run may close one, and its number may come again.
  std::map<int, FILE*> pipes;
};
