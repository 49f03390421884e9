#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/endtoend/Application.h"
#include "tests/endtoend/Machine.h"
#include "tests/endtoend/MountView.h"
#include "tests/endtoend/ToolGate.h"

/// A test of whole installations without a window, for which a machine of its own
/// with two plug-in folders and the data of a user is made.
class RunnerTest : public testing::Test {
 protected:
  RunnerTest();
  /// Makes the view; `arrange` says what is different in it. In a constructor, or in
  /// ASSERT_NO_FATAL_FAILURE.
  void See(const std::function<bool()>& arrange);

  /// Starts COUNT runs for these plug-in folders, one after another.
  std::unique_ptr<Application> Start(const std::vector<std::string>& folders, int count = 1,
                                     const std::vector<std::string>& environment = {}) const;
  /// Runs one to its end and until nothing is left of it; its exit status.
  int Run(const std::vector<std::string>& folders) const;
  int Run() const { return Run(hosts); }

  /// The plug-in folder holds the bundle, whole and open, and beside it nothing new.
  testing::AssertionResult IsInstalled(const std::string& pluginFolder) const;
  /// Every byte of the user's data stands at the new place, or still at the old one.
  testing::AssertionResult IsNothingLost() const;
  /// Whether all of the user's data stand at `place`.
  bool HoldsData(const std::string& place) const;
  /// Adds a folder with that many files to the user's data.
  void AddData(const std::string& folder, int count);
  /// As it was before any run.
  void Reset() const;

  Machine machine;
  ToolGate gate;
  std::unique_ptr<MountView> view;
  std::vector<std::string> hosts;

 private:
  void MakeDataAnew() const;

  Tree data;
};
