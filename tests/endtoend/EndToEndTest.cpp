#include "tests/endtoend/EndToEndTest.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

std::unique_ptr<DisplayServer> EndToEndTest::server;

void EndToEndTest::SetUpTestSuite() { server = std::make_unique<DisplayServer>(); }

void EndToEndTest::TearDownTestSuite() { server.reset(); }

EndToEndTest::EndToEndTest()
    : desktop(server->name),
      pointer(desktop.Connection()),
      keyboard(desktop.Connection()),
      wizard(desktop, pointer),
      hand(server->name) {
  // Away from where windows come up, so that nothing is hovered by chance.
  pointer.MoveTo(0, 0);
}

void EndToEndTest::TearDown() {
  if (HasFailure()) {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test->test_suite_name()) + "." + test->name() + ".png";
    std::replace(name.begin(), name.end(), '/', '-');
    std::filesystem::create_directories(OSTREL_PICTURE_FOLDER);
    desktop.Capture().Write(std::string(OSTREL_PICTURE_FOLDER) + "/" + name);
    if (application) std::cerr << application->Describe() << application->Errors();
  }
  application.reset();
}

void EndToEndTest::Start(User user, std::vector<std::string> environment,
                         const std::vector<std::string>& command) {
  // What the one before left running would be taken for something of this one.
  application.reset();
  userData = ReadTree(machine.UserData());
  environment.push_back("DISPLAY=" + server->name);
  application = std::make_unique<Application>(machine, environment, user, view, command);
}

testing::AssertionResult EndToEndTest::StartOn(Page page) {
  machine.Furnish();
  Start();
  return wizard.GoTo(page);
}

void EndToEndTest::InstallToTheFinish() {
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Wizard::Page::kSummary));
  wizard.Click(Wizard::kNext);
  ASSERT_TRUE(wizard.IsOn(Wizard::Page::kFinish));
  wizard.Click(Wizard::kCancel);
  ASSERT_TRUE(Ends());
}

void EndToEndTest::GoOnToTheError() {
  ASSERT_TRUE(wizard.GoTo(Page::kSummary));
  wizard.Click(Wizard::kNext);
  const MessageBox message = Box(MessageBox::kError);
  ASSERT_TRUE(message.IsUp());
  message.Click(Button::kOk);
  ASSERT_TRUE(Ends());
}

testing::AssertionResult EndToEndTest::Ends(int status) {
  const int seen = application->WaitForEnd();
  if (seen != status) {
    return testing::AssertionFailure() << "the installer ends with " << seen;
  }
  const std::string left = application->WaitForTools();
  if (left.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "these are left running: " << left;
}

testing::AssertionResult EndToEndTest::IsInstalled(const std::string& pluginFolder) const {
  std::string difference =
      DescribeDifference(machine.InstalledTree(), ReadInstalledTree(pluginFolder));
  for (const auto& entry : std::filesystem::directory_iterator(pluginFolder)) {
    if (entry.path().filename() != "Halvorix") difference += entry.path().string() + " is new";
  }
  if (difference.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "in " << pluginFolder << ": " << difference;
}

testing::AssertionResult EndToEndTest::IsUntouched() const {
  for (int row = 0; row < Machine::kHostCount; ++row) {
    if (!std::filesystem::exists(machine.PluginFolder(row))) continue;
    if (!std::filesystem::is_empty(machine.PluginFolder(row))) {
      return testing::AssertionFailure() << machine.PluginFolder(row) << " is not empty";
    }
  }
  const std::string difference = DescribeDifference(userData, ReadTree(machine.UserData()));
  if (!difference.empty()) {
    return testing::AssertionFailure() << "in the user's data: " << difference;
  }
  if (std::filesystem::exists(machine.MachineData())) {
    return testing::AssertionFailure() << "there are data of the machine";
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult EndToEndTest::IsDataMoved() const {
  if (std::filesystem::exists(machine.UserData())) {
    return testing::AssertionFailure() << "the user's data are still there";
  }
  const std::string difference =
      DescribeDifference(WithMode(userData, 0777), ReadTree(machine.MachineData()));
  if (difference.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "in the machine's data: " << difference;
}
