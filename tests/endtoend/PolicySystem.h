#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/endtoend/ChildProcess.h"
#include "tests/endtoend/MountView.h"
#include "tests/support/TemporaryFolder.h"

/// The real pkexec and the real polkit on a system bus of the test's own, in a
/// view of the file system in which there is no other. Only root can make one.
class PolicySystem {
 public:
  /// What the one rule of the system says to whoever wants to act as root.
  enum class Rule { kAllow, kRefuse, kAsk };
  /// Who is there to be asked for an administrator's password, and what is answered.
  enum class Agent { kNone, kGrants, kFails, kDismisses };

  PolicySystem(Rule rule, Agent agent);

  const MountView& View() const { return *view; }

  /// How often the rule has been consulted. Ends the services.
  int CountDecisions();
  /// How often a password was asked for.
  int CountQuestions() const;

 private:
  bool Arrange(Rule rule, bool isAsked) const;
  std::unique_ptr<ChildProcess> Start(std::vector<std::string> command, const char* log) const;
  void WaitForAuthority() const;

  TemporaryFolder folder;
  std::unique_ptr<MountView> view;
  std::unique_ptr<ChildProcess> bus;
  std::unique_ptr<ChildProcess> authority;
  std::unique_ptr<ChildProcess> agent;
};
