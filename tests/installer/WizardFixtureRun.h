#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "installer/InstallationWorld.h"

/// What a test has in store for the wizard's run, and what that run did. The
/// run is on a thread of its own; all operations may be called on any.
class RunScript {
 public:
  /// Notes a call of the run, and stays in it while it is held.
  void Note(const std::string& call);
  std::vector<std::string> GetCalls() const;
  /// How many calls begin with `start`.
  std::size_t Count(const std::string& start) const;

  /// The next call that begins with `start` lasts until `Release`, or until
  /// another one is held in its place.
  void HoldAt(const std::string& start);
  bool IsHeld() const;
  void Release();

  /// The answer to the request for rights.
  std::atomic<int> rightsStatus{0};
  /// The answer to launching the copying tool.
  std::atomic<int> copyStatus{0};

 private:
  void LetGo();

  mutable std::mutex mutex;
  std::condition_variable changed;
  std::vector<std::string> calls;
  std::string heldStart;
  bool held = false;
  /// Tells one hold from the next.
  std::uint64_t holds = 0;
};

/// The world of one wizard, played from a script, which outlives it. The last
/// call of each run is "gone".
class ScriptedWorld : public InstallationWorld {
 public:
  ScriptedWorld(RunScript& played, std::function<void()> requestRedraw);

  std::unique_ptr<Authorization> MakeAuthorization() override;
  std::string ResourcePath(const std::string& name, const std::string& type) override;
  std::string DataPath(std::int32_t kind) override;
  bool PathExists(const std::string& path) override;
  bool HasEnvironment(const std::string& name) override;
  void WaitForChild(std::int32_t pid) override;
  void RequestRedraw() override;

 private:
  RunScript& script;
  std::function<void()> redraw;
};
