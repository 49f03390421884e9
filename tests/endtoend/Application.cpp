#include "tests/endtoend/Application.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "tests/endtoend/Waiting.h"

ChildProcess::Setup Application::MakeSetup(const Machine& machine,
                                           const std::vector<std::string>& environment,
                                           ChildProcess::User user, const MountView* view,
                                           const std::vector<std::string>& command) {
  ChildProcess::Setup setup;
  setup.command = command.empty() ? std::vector{machine.InstallerProgram()} : command;
  setup.environment = machine.Environment();
  setup.environment.emplace_back("PATH=/usr/local/bin:/usr/bin:/bin");
  for (const char* name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"}) {
    const char* value = std::getenv(name);
    if (value != nullptr) setup.environment.push_back(std::string(name) + "=" + value);
  }
  setup.environment.insert(setup.environment.end(), environment.begin(), environment.end());
  // There the file dialog opens.
  setup.folder = machine.path;
  setup.errors = machine.Path("errors.log");
  setup.user = user;
  setup.view = view;
  return setup;
}

Application::Application(const Machine& machine, const std::vector<std::string>& environment,
                         ChildProcess::User user, const MountView* view,
                         const std::vector<std::string>& command)
    : errors(machine.Path("errors.log")),
      process(MakeSetup(machine, environment, user, view, command)) {
  orphans.Except(process.Id());
}

Application::~Application() {
  process.Kill();
  orphans.Kill();
}

std::string Application::WaitForTools() const {
  std::string names;
  WaitUntil([this, &names] {
    names.clear();
    for (const std::string& name : orphans.NamesOfStrangers()) names += name + " ";
    return names.empty();
  });
  return names;
}

testing::AssertionResult Application::KillDaemons(std::size_t count) const {
  if (!WaitUntil([this, count] { return orphans.Daemons().size() >= count; })) {
    return testing::AssertionFailure() << orphans.Daemons().size() << " daemons run";
  }
  for (const pid_t daemon : orphans.Daemons()) kill(daemon, SIGKILL);
  if (WaitUntil([this] { return orphans.Daemons().empty(); })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "they do not end";
}

int Application::CountPipes() const {
  int count = 0;
  std::error_code error;
  const std::string folder = "/proc/" + std::to_string(process.Id()) + "/fd";
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    if (std::filesystem::read_symlink(entry.path(), error).string().starts_with("pipe:")) ++count;
  }
  return count;
}

std::string Application::Describe() {
  const std::optional<int> status = process.ExitStatus();
  return status ? "The installer has ended with " + std::to_string(*status) + ".\n"
                : "The installer runs.\n";
}

std::string Application::Errors() const { return ReadWholeFile(errors); }
