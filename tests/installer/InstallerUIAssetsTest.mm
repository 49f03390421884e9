#include <gtest/gtest.h>

#include "Src/HXUI/HXControl.h"
#include "installer/DataPaths.h"
#include "tests/installer/WizardFixture.h"

namespace {

using Choice = std::array<bool, 3>;

/// The choice of an assets folder, which no control of this wizard makes.
class InstallerUIAssetsTest : public WizardFixture {
 protected:
  InstallerUIAssetsTest() { BuildAndShow(); }
};

TEST_F(InstallerUIAssetsTest, FirstChoiceIsTheUsersDocuments) {
  ui->OnAssetsChoice(0, kChangeDone);
  EXPECT_EQ(ui->assetsChoice, (Choice{true, false, false}));
  EXPECT_EQ(ui->assetsPath, GetAssetsPath(1));
  EXPECT_FALSE(ui->assetsPath.empty());
}

TEST_F(InstallerUIAssetsTest, SecondChoiceIsTheSharedDocuments) {
  ui->OnAssetsChoice(1, kChangeDone);
  EXPECT_EQ(ui->assetsChoice, (Choice{false, true, false}));
  EXPECT_EQ(ui->assetsPath, GetAssetsPath(2));
  EXPECT_NE(ui->assetsPath, GetAssetsPath(1));
}

TEST_F(InstallerUIAssetsTest, ThirdChoiceKeepsThePath) {
  ui->assetsPath = "/Mine";
  ui->assetsChoice = {true, false, false};
  ui->OnAssetsChoice(2, kChangeDone);
  EXPECT_EQ(ui->assetsChoice, (Choice{false, false, true}));
  EXPECT_EQ(ui->assetsPath, "/Mine");
}

TEST_F(InstallerUIAssetsTest, OnlyTheFinishedChangeCounts) {
  for (const std::uint32_t notification : {0U, 1U, 3U}) {
    ui->OnAssetsChoice(1, notification);
    EXPECT_EQ(ui->assetsChoice, Choice{});
    EXPECT_EQ(ui->assetsPath, "");
  }
}

TEST_F(InstallerUIAssetsTest, AChoiceRedrawsTheWindow) {
  ExpectRedraw([this] { ui->OnAssetsChoice(2, kChangeDone); });
}

}  // namespace
