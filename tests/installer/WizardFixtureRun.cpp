#include "tests/installer/WizardFixtureRun.h"

#include <algorithm>
#include <utility>

void RunScript::Note(const std::string& call) {
  std::unique_lock lock(mutex);
  calls.push_back(call);
  if (heldStart.empty() || !call.starts_with(heldStart)) return;
  held = true;
  const std::uint64_t present = holds;
  changed.wait(lock, [this, present] { return holds != present; });
}

std::vector<std::string> RunScript::GetCalls() const {
  const std::lock_guard lock(mutex);
  return calls;
}

std::size_t RunScript::Count(const std::string& start) const {
  const std::lock_guard lock(mutex);
  return static_cast<std::size_t>(
      std::count_if(calls.begin(), calls.end(),
                    [&start](const std::string& call) { return call.starts_with(start); }));
}

void RunScript::HoldAt(const std::string& start) {
  const std::lock_guard lock(mutex);
  heldStart = start;
  LetGo();
}

bool RunScript::IsHeld() const {
  const std::lock_guard lock(mutex);
  return held;
}

void RunScript::Release() {
  const std::lock_guard lock(mutex);
  heldStart.clear();
  LetGo();
}

void RunScript::LetGo() {
  ++holds;
  held = false;
  changed.notify_all();
}

namespace {

class ScriptedAuthorization : public Authorization {
 public:
  explicit ScriptedAuthorization(RunScript& played) : script(played) {}
  ~ScriptedAuthorization() override { script.Note("gone"); }

  int Create() override {
    script.Note("create");
    return 0;
  }

  int CopyRights(const std::string& right) override {
    script.Note("rights " + right);
    return script.rightsStatus.load();
  }

  int ExecuteWithPrivileges(const std::string& tool, const std::vector<std::string>& arguments,
                            FILE** pipe) override {
    std::string call = tool;
    for (const std::string& argument : arguments) call += " " + argument;
    script.Note(call);
    *pipe = nullptr;
    return tool == "/usr/bin/ditto" ? script.copyStatus.load() : 0;
  }

  void Free() override { script.Note("free"); }

 private:
  RunScript& script;
};

}  // namespace

ScriptedWorld::ScriptedWorld(RunScript& played, std::function<void()> requestRedraw)
    : script(played), redraw(std::move(requestRedraw)) {}

std::unique_ptr<Authorization> ScriptedWorld::MakeAuthorization() {
  return std::make_unique<ScriptedAuthorization>(script);
}

std::string ScriptedWorld::ResourcePath(const std::string& name, const std::string& type) {
  return "/Resources/" + name + "." + type;
}

std::string ScriptedWorld::DataPath(std::int32_t kind) { return "/Data" + std::to_string(kind); }
bool ScriptedWorld::PathExists(const std::string&) { return false; }
bool ScriptedWorld::HasEnvironment(const std::string&) { return false; }
void ScriptedWorld::WaitForChild(std::int32_t) {}

void ScriptedWorld::RequestRedraw() {
  redraw();
  script.Note("redraw");
}
