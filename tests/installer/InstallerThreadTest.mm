#include "installer/InstallerThread.h"

#include <gtest/gtest.h>

#include <atomic>

#include "tests/installer/WizardFixture.h"

namespace {

class InstallerThreadTest : public WizardFixture {
 protected:
  InstallerThreadTest() {
    AddHosts({10});
    Build();
  }
};

/// Tells when it is deleted.
class WatchedThread : public InstallerThread {
 public:
  WatchedThread(InstallerUI* wizard, std::atomic<bool>& deletedFlag)
      : InstallerThread(wizard), deleted(deletedFlag) {}
  ~WatchedThread() override { deleted.store(true); }

 private:
  std::atomic<bool>& deleted;
};

TEST_F(InstallerThreadTest, RunInstallsForTheWizard) {
  InstallerThread thread(ui.get());
  thread.Run();
  EXPECT_TRUE(ui->installDone.load());
  EXPECT_FALSE(ui->installFailed.load());
  EXPECT_EQ(ui->installStep.load(), kDataFolderStep);
  EXPECT_EQ(script.Count("/usr/bin/ditto /Resources/Ostrel64.plugin /Hosts/10/Plug-ins/"), 1U);
  EXPECT_EQ(script.Count("gone"), 1U);
  CountRun();
}

TEST_F(InstallerThreadTest, RunEndsInTheWizardsStatus) {
  script.rightsStatus = -1;
  InstallerThread thread(ui.get());
  thread.Run();
  EXPECT_TRUE(ui->installDone.load());
  EXPECT_TRUE(ui->installFailed.load());
  EXPECT_EQ(ui->installStep.load(), -1);
  CountRun();
}

TEST_F(InstallerThreadTest, DeletesItselfWhenTheRunHasEnded) {
  std::atomic<bool> deleted = false;
  script.HoldAt("rights");
  auto* thread = new WatchedThread(ui.get(), deleted);
  ASSERT_TRUE(thread->Start());
  CountRun();
  PumpUntil([this] { return script.IsHeld(); }, "the question for rights");
  EXPECT_FALSE(deleted.load());
  EXPECT_FALSE(ui->installDone.load());
  script.Release();
  PumpUntil([&deleted] { return deleted.load(); }, "the thread to be deleted");
  EXPECT_TRUE(ui->installDone.load());
}

}  // namespace
