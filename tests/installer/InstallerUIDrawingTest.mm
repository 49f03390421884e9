#include <gtest/gtest.h>

#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "Src/HXUI/HXPanel.h"
#include "installer/InstallerTexts.h"
#include "resources/Pictures.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/installer/WizardFixture.h"

namespace {

constexpr HXColor kBackground{45, 45, 45, 255};
constexpr HXColor kBar{70, 70, 70, 255};
constexpr HXColor kLine{100, 100, 100, 255};
constexpr HXColor kSummaryColor{30, 30, 30, 255};
constexpr HXSize kWizardSize{500, 360};
/// Right of the picture, above the bar.
constexpr HXRect kContent{160, 0, 340, 310};
constexpr HXRect kPage{160, 50, 340, 260};

/// A text that is to be seen: an empty box stands for one line from its origin.
struct ExpectedText {
  std::string text;
  HXRect box;
  float size = 11;
  std::uint32_t style = 0;
};

const ExpectedText kTitle{
    "Ostrel 3D for After Effects Installer", {170, 20, 0, 0}, 15, HXCocoaDC::kBold};

/// The page as it has to look, but without picture, bar and widgets.
class ExpectedPage : public HXPanel {
 public:
  ExpectedPage(HXObject* parent, std::vector<ExpectedText> newTexts)
      : HXPanel(parent, {0, 0}, kWizardSize), texts(std::move(newTexts)) {}

  void Draw() override {
    HXCocoaDC dc(this);
    dc.SetFillColor(kBackground);
    dc.DrawRect({0, 0, kWizardSize.width, kWizardSize.height});
    dc.SetTextColor({200, 200, 200, 255});
    for (const ExpectedText& text : texts) {
      dc.SetFont("Verdana", text.style, text.size);
      dc.DrawText(text.text, text.box, 0);
    }
  }

 private:
  std::vector<ExpectedText> texts;
};

/// What the window itself paints, page by page.
class InstallerUIDrawingTest : public WizardFixture {
 protected:
  /// The wizard's picture with its panels out of the way.
  std::unique_ptr<DrawnPixels> DrawPage() {
    HostPanel().SetVisible(false);
    LicencePanel().SetVisible(false);
    SummaryPanel().SetVisible(false);
    return WizardFixture::Draw(*ui);
  }

  /// Compares the page with the title and these texts, pixel by pixel.
  void ExpectTexts(std::vector<ExpectedText> texts) {
    texts.insert(texts.begin(), kTitle);
    window->SetSize(kWizardSize);
    ExpectedPage page(window.get(), std::move(texts));
    const auto expected = WizardFixture::Draw(page);
    const auto drawn = DrawPage();
    ASSERT_EQ(drawn->GetSize(), kWizardSize);
    int unlike = 0;
    for (int y = kContent.y; y < kContent.y + kContent.height; ++y) {
      for (int x = kContent.x; x < kContent.x + kContent.width; ++x) {
        if (drawn->At(x, y) != expected->At(x, y)) ++unlike;
      }
    }
    EXPECT_EQ(unlike, 0);
  }

  /// The lines of text in `rect`, as the rectangles of their ink.
  static std::vector<HXRect> LinesOf(const DrawnPixels& pixels, HXRect rect) {
    std::vector<HXRect> lines;
    int top = -1;
    for (int y = rect.y; y <= rect.y + rect.height; ++y) {
      const bool inside = y < rect.y + rect.height;
      const bool ink = inside && pixels.Ink({rect.x, y, rect.width, 1}, kBackground) > 0;
      if (ink && top < 0) top = y;
      if (!ink && top >= 0) {
        lines.push_back(pixels.InkBounds({rect.x, top, rect.width, y - top}, kBackground));
        top = -1;
      }
    }
    return lines;
  }

  static void ExpectAll(const DrawnPixels& pixels, HXRect rect, HXColor color) {
    EXPECT_EQ(CountOther(pixels, rect, color), 0)
        << rect.x << ", " << rect.y << ", " << rect.width << ", " << rect.height;
  }

  /// Picture, title and bar, which are the same on every page.
  void ExpectSurroundings(const DrawnPixels& pixels) {
    EXPECT_EQ(CountUnlikePicture(pixels, kBannerPng, 0, {160, 310}, 0), 0);
    const auto title = LinesOf(pixels, {160, 10, 340, 40});
    ASSERT_EQ(title.size(), 1U);
    EXPECT_GE(title[0].x, 171);
    EXPECT_LE(title[0].x, 174);
    EXPECT_GE(title[0].y, 20);
    EXPECT_GT(title[0].width, 250);
    ExpectAll(pixels, {160, 0, 340, 18}, kBackground);
    ExpectAll(pixels, {0, 310, 500, 1}, kLine);
    // Around the buttons, which stand at y 320 to 349.
    ExpectAll(pixels, {0, 311, 500, 9}, kBar);
    ExpectAll(pixels, {0, 350, 500, 10}, kBar);
    ExpectAll(pixels, {0, 311, 150, 49}, kBar);
    ExpectAll(pixels, {490, 311, 10, 49}, kBar);
  }
};

TEST_F(InstallerUIDrawingTest, WelcomeShowsVersionAndAdvice) {
  BuildAndShow();
  ExpectTexts({{InstallerTexts::Welcome(), {170, 70, 330, 360}}});
  const auto lines = LinesOf(*DrawPage(), kPage);
  // Three paragraphs of one or two lines each, with an empty line between them.
  ASSERT_GE(lines.size(), 4U);
  EXPECT_GE(lines.front().y, 69);
  EXPECT_LE(lines.front().y, 74);
  for (const HXRect& line : lines) {
    EXPECT_GE(line.x, 170);
    EXPECT_LE(line.x + line.width, 500);
  }
  EXPECT_GT(lines.back().y - lines.front().y, 4 * 12);
}

TEST_F(InstallerUIDrawingTest, LicenceShowsTheTitleOnly) {
  BuildAndShow();
  GoToLicence();
  ExpectTexts({});
  ExpectAll(*DrawPage(), kPage, kBackground);
}

TEST_F(InstallerUIDrawingTest, HostPageAsksInBoldWithinTwoLines) {
  BuildAndShow();
  GoToHosts();
  ExpectTexts({{"Select which versions of Adobe After Effects you want to install Ostrel 3D on:",
                {170, 70, 330, 360},
                11,
                HXCocoaDC::kBold}});
  const auto lines = LinesOf(*DrawPage(), kPage);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_LT(lines[1].width, lines[0].width);
  // The host panel begins below the text.
  EXPECT_LE(lines[1].y + lines[1].height, 100);
}

TEST_F(InstallerUIDrawingTest, AssetsPageShowsTheChosenFolder) {
  BuildAndShow();
  GoToAssets();
  // The second is wrapped.
  for (const std::string folder :
       {"/Users/Shared/Halvorix", "/Volumes/Pictures and sounds/of all the projects/Halvorix"}) {
    SCOPED_TRACE(folder);
    ui->assetsPath = folder;
    ExpectTexts({{"Select the location where Ostrel 3D assets will be installed on:",
                  {170, 70, 330, 360},
                  11,
                  HXCocoaDC::kBold},
                 {"Selected location:", {170, 220, 330, 360}, 11, HXCocoaDC::kBold},
                 {folder, {170, 235, 320, 360}}});
  }
  const auto lines = LinesOf(*DrawPage(), {160, 210, 340, 100});
  ASSERT_EQ(lines.size(), 3U);
  for (const HXRect& line : lines) EXPECT_LE(line.x + line.width, 490);
}

TEST_F(InstallerUIDrawingTest, AssetsPageWithoutAFolderHasTheTwoTextsOnly) {
  BuildAndShow();
  GoToAssets();
  EXPECT_EQ(LinesOf(*DrawPage(), {160, 210, 340, 100}).size(), 1U);
  ExpectSurroundings(*WizardFixture::Draw(*ui));
}

TEST_F(InstallerUIDrawingTest, SummaryExplainsAndFrames) {
  AddHosts({9});
  BuildAndShow();
  GoToSummary();
  const auto drawn = DrawPage();
  // Around the panel at (180, 110) of 300 by 190: as wide as that, two pixels taller.
  ExpectAll(*drawn, {179, 109, 300, 1}, kLine);
  ExpectAll(*drawn, {179, 300, 300, 1}, kLine);
  ExpectAll(*drawn, {179, 109, 1, 192}, kLine);
  ExpectAll(*drawn, {478, 109, 1, 192}, kLine);
  ExpectAll(*drawn, {180, 110, 298, 190}, kBackground);
  ExpectAll(*drawn, {479, 105, 21, 200}, kBackground);
  ExpectAll(*drawn, {160, 105, 19, 200}, kBackground);
  ExpectAll(*drawn, {160, 301, 340, 9}, kBackground);
  ExpectAll(*drawn, {160, 103, 340, 6}, kBackground);
  const auto lines = LinesOf(*drawn, {160, 50, 340, 58});
  ASSERT_EQ(lines.size(), 2U);
  for (const HXRect& line : lines) EXPECT_LE(line.x + line.width, 170 + 320 + 1);
}

TEST_F(InstallerUIDrawingTest, SummaryTextIsTheExpectedOne) {
  AddHosts({9});
  BuildAndShow();
  GoToSummary();
  window->SetSize(kWizardSize);
  ExpectedPage page(window.get(),
                    {kTitle,
                     {"Click Next to continue with the installation, or click Back if you want to "
                      "review or change any settings.",
                      {170, 70, 320, 360}}});
  const auto expected = WizardFixture::Draw(page);
  const auto drawn = DrawPage();
  for (int y = 0; y < 108; ++y) {
    for (int x = 160; x < 500; ++x) ASSERT_EQ(drawn->At(x, y), expected->At(x, y)) << x << " " << y;
  }
}

TEST_F(InstallerUIDrawingTest, SummaryPanelCoversTheFramesRightEdge) {
  AddHosts({9});
  BuildAndShow();
  GoToSummary();
  const auto drawn = WizardFixture::Draw(*ui);
  ExpectAll(*drawn, {179, 109, 300, 1}, kLine);
  ExpectAll(*drawn, {179, 300, 300, 1}, kLine);
  ExpectAll(*drawn, {179, 109, 1, 192}, kLine);
  // The scroll bar's thumb in place of the line.
  EXPECT_EQ(drawn->Count({478, 110, 1, 190}, [](HXColor color) { return color == kLine; }), 0);
  // The text is short: below it there is the backing panel.
  ExpectAll(*drawn, {180, 250, 283, 50}, kSummaryColor);
}

TEST_F(InstallerUIDrawingTest, ProgressShowsTheStepUnderWay) {
  AddHosts({9, kOtherVersionSlot});
  BuildAndShow();
  script.HoldAt("rights");
  GoToProgress();
  PumpUntil([this] { return script.IsHeld(); }, "the question for rights");
  const std::pair<int, const char*> steps[] = {{-1, "Preparing to install..."},
                                               {0, "Installing CS3 version..."},
                                               {8, "Installing CC 2015.3 version..."},
                                               {kOtherVersionSlot, "Installing 18.0 version..."},
                                               {kCustomSlot, "Installing Custom version..."},
                                               {kDataFolderStep, "Installing assets..."},
                                               {kDataFolderStep + 1, "Preparing to install..."}};
  for (const auto& [step, text] : steps) {
    SCOPED_TRACE(text);
    ui->installStep.store(step);
    ExpectTexts({{"Installing Ostrel 3D for After Effects, please wait...",
                  {170, 70, 330, 360},
                  11,
                  HXCocoaDC::kBold},
                 {text, {170, 120, 330, 360}}});
    const auto lines = LinesOf(*DrawPage(), {160, 110, 340, 200});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_GE(lines[0].y, 119);
    EXPECT_LE(lines[0].y, 124);
  }
}

TEST_F(InstallerUIDrawingTest, FinishShowsSuccess) {
  AddHosts({9});
  BuildAndShow();
  GoToFinish();
  ExpectTexts({{"Ostrel 3D for After Effects has been successfully installed!\n\n"
                "Click Finish to close the installer.",
                {170, 70, 330, 360}}});
}

TEST_F(InstallerUIDrawingTest, PictureTitleAndBarAreOnEveryPage) {
  AddHosts({9});
  BuildAndShow();
  const auto expect = [this](std::uint32_t page) {
    SCOPED_TRACE(page);
    ASSERT_EQ(ui->GetPage(), page);
    ExpectSurroundings(*WizardFixture::Draw(*ui));
  };
  expect(InstallerUI::kWelcomePage);
  Press(NextButton());
  expect(InstallerUI::kLicencePage);
  Press(NextButton());
  expect(InstallerUI::kHostPage);
  Press(NextButton());
  expect(InstallerUI::kSummaryPage);
  script.HoldAt("rights");
  StartRun();
  expect(InstallerUI::kProgressPage);
  script.Release();
  PumpUntil([this] { return ui->GetPage() == InstallerUI::kFinishPage; }, "the finish page");
  expect(InstallerUI::kFinishPage);
}

TEST_F(InstallerUIDrawingTest, LicencePageShowsThePaper) {
  BuildAndShow();
  GoToLicence();
  const auto drawn = WizardFixture::Draw(*ui);
  const HXColor white{255, 255, 255, 255};
  const HXRect paper{180, 60, 283, 240};
  EXPECT_GT(drawn->Count(paper, [&](HXColor color) { return color == white; }),
            paper.width * paper.height / 2);
  EXPECT_GT(CountOther(*drawn, paper, white), 1000);
  // The scroll bar's left edge, and nothing beyond the panel.
  ExpectAll(*drawn, {463, 60, 1, 240}, {0, 0, 0, 255});
  ExpectAll(*drawn, {480, 50, 20, 260}, kBackground);
}

}  // namespace
