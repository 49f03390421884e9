#include "tests/endtoend/PolicySystem.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tests/endtoend/Waiting.h"

namespace {

constexpr const char* kBusSocket = "/run/dbus/system_bus_socket";
constexpr const char* kRules = "/etc/polkit-1/rules.d";
constexpr const char* kPkexec = "/usr/bin/pkexec";
constexpr const char* kRealPkexec = "/run/pkexec";
constexpr const char* kNote = "Somebody wants to act as root";

const char* ResultOf(PolicySystem::Rule rule) {
  switch (rule) {
    case PolicySystem::Rule::kAllow:
      return "YES";
    case PolicySystem::Rule::kRefuse:
      return "NO";
    case PolicySystem::Rule::kAsk:
      break;
  }
  return "AUTH_ADMIN";
}

const char* NameOf(PolicySystem::Agent agent) {
  switch (agent) {
    case PolicySystem::Agent::kGrants:
      return "grant";
    case PolicySystem::Agent::kFails:
      return "fail";
    default:
      return "dismiss";
  }
}

bool WriteRules(PolicySystem::Rule rule) {
  std::ofstream stream(std::string(kRules) + "/10-test.rules");
  stream << "polkit.addAdminRule(function() { return [\"unix-user:root\"]; });\n"
         << "polkit.addRule(function(action) {\n"
         << "  if (action.id != \"org.freedesktop.policykit.exec\") return;\n"
         << "  polkit.log(\"" << kNote << ".\");\n"
         << "  return polkit.Result." << ResultOf(rule) << ";\n"
         << "});\n";
  return stream.flush().good();
}

int CountLines(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

}  // namespace

PolicySystem::PolicySystem(Rule rule, Agent agent) {
  EXPECT_EQ(chmod(folder.path.c_str(), 0755), 0);
  const bool isAsked = agent != Agent::kNone;
  view = std::make_unique<MountView>([&] { return Arrange(rule, isAsked); });
  bus = Start({"dbus-daemon", "--system", "--nofork", "--nopidfile", "--nosyslog"}, "bus.log");
  EXPECT_TRUE(WaitUntil([this] { return std::filesystem::is_socket(view->Seen(kBusSocket)); }));
  authority = Start({"/usr/lib/polkit-1/polkitd"}, "authority.log");
  WaitForAuthority();
  if (isAsked) {
    this->agent = Start({OSTREL_AGENT, NameOf(agent), folder.path}, "agent.log");
  }
}

bool PolicySystem::Arrange(Rule rule, bool isAsked) const {
  umask(0);
  if (!MountView::MountEmpty("/run") || mkdir("/run/dbus", 0755) != 0 ||
      !MountView::MountEmpty(kRules) || !WriteRules(rule)) {
    return false;
  }
  if (!isAsked) return true;
  // An agent belongs to a session or to one process, and there are no sessions here. So the agent
  // is told who is going to ask before the real program asks on their behalf.
  folder.AddFile("pkexec", "#!/bin/sh\necho \"$PPID $(id -u)\" >" + folder.Path("askers") +
                               "\nread -r line <" + folder.Path("ready") + "\nexec " + kRealPkexec +
                               " \"$@\"\n");
  return chmod(folder.Path("pkexec").c_str(), 0755) == 0 &&
         mkfifo(folder.Path("askers").c_str(), 0666) == 0 &&
         mkfifo(folder.Path("ready").c_str(), 0666) == 0 &&
         std::ofstream(kRealPkexec).flush().good() && MountView::Bind(kPkexec, kRealPkexec) &&
         MountView::Bind(folder.Path("pkexec"), kPkexec);
}

std::unique_ptr<ChildProcess> PolicySystem::Start(std::vector<std::string> command,
                                                  const char* log) const {
  ChildProcess::Setup setup;
  setup.command = std::move(command);
  setup.environment = {"PATH=/usr/sbin:/usr/bin:/sbin:/bin"};
  setup.output = folder.AddFile(log);
  setup.errors = folder.Path(log);
  setup.view = view.get();
  return std::make_unique<ChildProcess>(setup);
}

/// It says so itself; a question before that would start a second one.
void PolicySystem::WaitForAuthority() const {
  EXPECT_TRUE(WaitUntil([this] {
    return ReadWholeFile(folder.Path("authority.log")).find("Acquired the name") !=
           std::string::npos;
  })) << ReadWholeFile(folder.Path("authority.log"))
      << ReadWholeFile(folder.Path("bus.log"));
}

int PolicySystem::CountDecisions() {
  kill(authority->Id(), SIGTERM);
  EXPECT_TRUE(authority->WaitForEnd());
  return CountLines(ReadWholeFile(folder.Path("authority.log")), kNote);
}

int PolicySystem::CountQuestions() const {
  if (!std::filesystem::exists(folder.Path("questions"))) return 0;
  return CountLines(ReadWholeFile(folder.Path("questions")), "org.freedesktop.policykit.exec: ");
}
