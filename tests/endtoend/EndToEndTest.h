#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/endtoend/Application.h"
#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/DisplayServer.h"
#include "tests/endtoend/FolderPanel.h"
#include "tests/endtoend/Keyboard.h"
#include "tests/endtoend/Machine.h"
#include "tests/endtoend/MessageBox.h"
#include "tests/endtoend/MountView.h"
#include "tests/endtoend/Pointer.h"
#include "tests/endtoend/UnsteadyHand.h"
#include "tests/endtoend/Wizard.h"

/// A test of the real installer: a machine of its own, and a display that the
/// tests of a suite share. After a failure a picture of the screen is kept.
class EndToEndTest : public testing::Test {
 protected:
  using Page = Wizard::Page;
  using Row = Wizard::Row;
  using Button = MessageBox::Button;
  using User = ChildProcess::User;

  static void SetUpTestSuite();
  static void TearDownTestSuite();
  EndToEndTest();
  void TearDown() override;

  /// Starts the installer on the test's display; `environment` is NAME=value. It
  /// sees the file system through `view` when there is one. `command` is its program
  /// with arguments; empty is the machine's installer with none.
  void Start(User user = User::kRoot, std::vector<std::string> environment = {},
             const std::vector<std::string>& command = {});
  /// Starts it on a furnished machine and goes to a page; at most to the summary.
  testing::AssertionResult StartOn(Page page);
  MessageBox Box(const char* title) { return MessageBox(desktop, pointer, title); }

  /// From the hosts on, through the installation and out; use it in ASSERT_NO_FATAL_FAILURE.
  void InstallToTheFinish();
  /// From the welcome page to the message that a run has failed, and through it; use it likewise.
  void GoOnToTheError();
  /// Waits for the end; it has to come with `status`, and nothing may be left running.
  testing::AssertionResult Ends(int status = 0);
  /// The installation of row `row` of a furnished machine is there, whole, and the only thing.
  testing::AssertionResult IsInstalled(const std::string& pluginFolder) const;
  /// Nothing was put into any plug-in folder, and the data stand where they stood.
  testing::AssertionResult IsUntouched() const;
  /// The data of the user have become those of the machine, open to everyone.
  testing::AssertionResult IsDataMoved() const;

  Machine machine;
  Desktop desktop;
  Pointer pointer;
  Keyboard keyboard;
  Wizard wizard;
  std::unique_ptr<Application> application;
  const MountView* view = nullptr;

 private:
  static std::unique_ptr<DisplayServer> server;
  Tree userData;
  UnsteadyHand hand;
};
