#include "tests/endtoend/Orphans.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/endtoend/Waiting.h"

namespace {

struct Child {
  pid_t id;
  char state;
  std::string name;
};

/// A process of the system as its "stat" file tells it: number (name) state parent ...
bool ReadChild(const std::filesystem::path& folder, Child* child) {
  std::ifstream stream(folder / "stat");
  // A process may end while it is read about; an iterator would throw then.
  std::string text;
  std::getline(stream, text, '\0');
  const std::size_t open = text.find('(');
  const std::size_t close = text.rfind(')');
  if (open == std::string::npos || close == std::string::npos) return false;
  std::istringstream rest(text.substr(close + 1));
  pid_t parent = 0;
  rest >> child->state >> parent;
  child->id = std::atoi(text.c_str());
  child->name = text.substr(open + 1, close - open - 1);
  return parent == getpid();
}

std::vector<Child> ChildrenOfThisProcess() {
  std::vector<Child> children;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator("/proc", error)) {
    Child child{};
    if (std::atoi(entry.path().filename().c_str()) > 0 && ReadChild(entry.path(), &child)) {
      children.push_back(child);
    }
  }
  return children;
}

std::vector<Child> ListRunning(const std::vector<pid_t>& others) {
  std::vector<Child> running;
  for (const Child& child : ChildrenOfThisProcess()) {
    if (std::find(others.begin(), others.end(), child.id) != others.end()) continue;
    if (child.state == 'Z') {
      waitpid(child.id, nullptr, WNOHANG);
    } else {
      running.push_back(child);
    }
  }
  return running;
}

bool IsDaemon(const Child& child) { return child.name == "gdnc" || child.name == "gpbs"; }

}  // namespace

void Orphans::Adopt() { EXPECT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0); }

Orphans::Orphans() {
  for (const Child& child : ChildrenOfThisProcess()) others.push_back(child.id);
}

std::vector<pid_t> Orphans::List() const {
  std::vector<pid_t> orphans;
  for (const Child& child : ListRunning(others)) orphans.push_back(child.id);
  return orphans;
}

std::vector<std::string> Orphans::NamesOfStrangers() const {
  std::vector<std::string> names;
  for (const Child& child : ListRunning(others)) {
    if (!IsDaemon(child)) names.push_back(child.name);
  }
  return names;
}

std::vector<pid_t> Orphans::Daemons() const {
  std::vector<pid_t> daemons;
  for (const Child& child : ListRunning(others)) {
    if (IsDaemon(child)) daemons.push_back(child.id);
  }
  return daemons;
}

void Orphans::Kill() const {
  EXPECT_TRUE(WaitUntil([this] {
    const std::vector<pid_t> orphans = List();
    for (const pid_t orphan : orphans) kill(orphan, SIGKILL);
    return orphans.empty();
  }));
}
