#include "Src/HXUI/HXComboBox.h"

#include "resources/Pictures.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"
#include "tests/Src/HXUI/MenuDriver.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr HXSize kSize{110, 17};
constexpr HXRect kTextArea{4, 1, 86, 13};

class HXComboBoxTest : public ToolkitFixture {
 protected:
  HXComboBoxTest() { WarpPointer(*window, {5, 5}); }

  HXComboBox* Make(const std::string& specification, bool lightText = true) {
    return Bind(new HXComboBox(window.get(), {50, 50}, specification, &value, lightText));
  }
  HXComboBox* Bind(HXComboBox* box) {
    box->SetChangeHandler(&ChangeRecorder::OnChange, &owner, 9);
    return box;
  }
  /// How many pixels of the text's area differ from the bare face.
  int TextInk(HXComboBox& box, bool lightText) {
    return CountUnlikeFace(*Draw(box), lightText, kTextArea);
  }
  /// Compares with a field of no items, which shows the bare face.
  int CountUnlikeFace(const DrawnPixels& pixels, bool lightText, HXRect rect) {
    auto* bare =
        new HXComboBox(window.get(), {50, 200}, std::vector<HXComboBoxItem>{}, nullptr, lightText);
    const auto face = Draw(*bare);
    int unlike = 0;
    for (int y = rect.y; y < rect.y + rect.height; ++y) {
      for (int x = rect.x; x < rect.x + rect.width; ++x) {
        if (!IsNear(pixels.At(x, y), face->At(x, y))) ++unlike;
      }
    }
    delete bare;
    return unlike;
  }

  std::int32_t value = 0;
  ChangeRecorder owner;
};

TEST_F(HXComboBoxTest, IsAlwaysBuilt110By17) {
  EXPECT_EQ(Make("A")->GetSize(), kSize);
  EXPECT_EQ((new HXComboBox(window.get(), {0, 0}, HXSize{60, 30}))->GetSize(), kSize);
  const std::vector<HXComboBoxItem> items{{5, "Five"}};
  const auto* box = new HXComboBox(window.get(), {3, 4}, items, &value, false);
  EXPECT_EQ(box->GetSize(), kSize);
  EXPECT_EQ(box->GetPosition(), (HXPoint{3, 4}));
  EXPECT_EQ(box->GetItems(), items);
}

TEST_F(HXComboBoxTest, SpecificationIsParsed) {
  EXPECT_EQ(Make("10/Ten|Other")->GetItems(),
            (std::vector<HXComboBoxItem>{{10, "Ten"}, {1, "Other"}}));
}

TEST_F(HXComboBoxTest, SpecificationResetsANumberFromTheCountOfItemsOn) {
  value = 2;
  Make("10/Ten|20/Twenty");
  EXPECT_EQ(value, 0);
  value = 20;
  Make("10/Ten|20/Twenty");
  EXPECT_EQ(value, 0);
  value = 1;
  Make("10/Ten|20/Twenty");
  EXPECT_EQ(value, 1);
  value = -5;
  Make("10/Ten|20/Twenty");
  EXPECT_EQ(value, -5);
}

TEST_F(HXComboBoxTest, ListOfItemsLeavesTheNumberAlone) {
  value = 20;
  new HXComboBox(window.get(), {0, 0}, std::vector<HXComboBoxItem>{{20, "Twenty"}}, &value, true);
  EXPECT_EQ(value, 20);
}

TEST_F(HXComboBoxTest, FaceDependsOnTheLookAndIsStretched) {
  const auto light = Draw(*Make("", true));
  const auto black = Draw(*Make("", false));
  EXPECT_EQ(CountUnlikePicture(*light, kComboLightTextPng, 0, kSize, 0), 0);
  EXPECT_EQ(CountUnlikePicture(*black, kComboBlackTextPng, 0, kSize, 0), 0);
  EXPECT_LT(light->At(10, 8).red, black->At(10, 8).red);

  HXComboBox* wide = Make("", false);
  wide->SetSize({220, 34});
  const auto stretched = Draw(*wide);
  EXPECT_TRUE(IsNear(stretched->At(30, 16), black->At(15, 8), 12));
}

TEST_F(HXComboBoxTest, WithoutAFaceTheGroundShows) {
  auto* box = new HXComboBox(window.get(), {0, 0}, HXSize{60, 30});
  EXPECT_EQ(CountOther(*Draw(*box), {0, 0, 110, 17}, {0, 0, 0, 255}), 0);
}

TEST_F(HXComboBoxTest, ShowsTheItemOfItsNumber) {
  HXComboBox* box = Make("I|MMMMM|7/WW");
  const int narrow = TextInk(*box, true);
  value = 1;
  const int wide = TextInk(*box, true);
  EXPECT_GT(narrow, 5);
  EXPECT_GT(wide, 2 * narrow);
  value = 3;
  EXPECT_EQ(TextInk(*box, true), 0);
  value = 7;
  EXPECT_GT(TextInk(*box, true), narrow);
}

TEST_F(HXComboBoxTest, ShowsTheFirstOfTwoItemsOfTheSameNumber) {
  HXComboBox* box = Make("0/I|0/MMMMM");
  const int shown = TextInk(*box, true);
  HXComboBox* first = Make("0/I");
  EXPECT_EQ(shown, TextInk(*first, true));
}

TEST_F(HXComboBoxTest, UnboundFieldShowsTheItemOfNumberZero) {
  auto* box = new HXComboBox(window.get(), {50, 50}, "5/I|0/MMMMM", nullptr, true);
  EXPECT_GT(TextInk(*box, true), 30);
}

TEST_F(HXComboBoxTest, TextColourTellsTheLookAndWhetherBound) {
  const auto drawn = [this](std::int32_t* bound, bool light) {
    return Draw(*new HXComboBox(window.get(), {50, 50}, "MMMMM", bound, light));
  };
  const auto darkest = [](const DrawnPixels& pixels) {
    int least = 255;
    for (int y = 1; y < 14; ++y) {
      for (int x = 4; x < 90; ++x) least = std::min<int>(least, pixels.At(x, y).red);
    }
    return least;
  };
  EXPECT_TRUE(IsNear(Brightest(*drawn(&value, true), kTextArea), {211, 214, 215, 255}, 16));
  EXPECT_TRUE(IsNear(Brightest(*drawn(nullptr, true), kTextArea), {180, 180, 180, 255}, 16));
  EXPECT_LT(darkest(*drawn(&value, false)), 25);
  EXPECT_TRUE(IsNear(darkest(*drawn(nullptr, false)), 75, 16));
}

TEST_F(HXComboBoxTest, TextStaysOffTheBorderAndTheArrow) {
  HXComboBox* box = Make("WWWWWWWWWWWWWWWWWWWWWWWWWWWW");
  const auto pixels = Draw(*box);
  EXPECT_GT(CountUnlikeFace(*pixels, true, kTextArea), 100);
  EXPECT_EQ(CountUnlikeFace(*pixels, true, {90, 0, 20, 17}), 0);
  EXPECT_EQ(CountUnlikeFace(*pixels, true, {0, 0, 4, 17}), 0);
  EXPECT_EQ(CountUnlikeFace(*pixels, true, {0, 0, 110, 1}), 0);
  EXPECT_EQ(CountUnlikeFace(*pixels, true, {0, 14, 110, 3}), 0);
}

TEST_F(HXComboBoxTest, HoverFramesTheField) {
  HXComboBox* box = Make("");
  SendMouse(NSMouseEntered, *box, {5, 5});
  const auto pixels = Draw(*box);
  EXPECT_EQ(CountWhiteInRing(*pixels, kSize), RingLength(kSize));
  EXPECT_EQ(CountUnlikePicture(*pixels, kComboLightTextPng, 0, kSize, 1), 0);
  SendMouse(NSMouseExited, *box, {5, 5});
  EXPECT_EQ(CountWhiteInRing(*Draw(*box), kSize), 0);
}

TEST_F(HXComboBoxTest, PressOpensTheMenuWithTheCurrentItemTicked) {
  value = 2;
  HXComboBox* box = Make("Low|Medium|High");
  const MenuDriver driver(0);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_TRUE(driver.wasOpen);
  EXPECT_EQ(driver.titles, (std::vector<std::string>{"Low", "Medium", "High"}));
  EXPECT_EQ(driver.ticks, (std::vector<bool>{false, false, true}));
}

TEST_F(HXComboBoxTest, MenuOpensTenPixelsInsideTheField) {
  // No event is served before the menu opens, so the window manager has not moved it yet.
  HXWindow stage(nullptr, {200, 500}, {300, 200}, "", HXWindow::kBorderless);
  stage.SetVisible(true);
  auto* box = new HXComboBox(&stage, {50, 50}, "Low|Medium|High", &value, true);
  MenuDriver driver(0);
  driver.expectedTopLeft = box->ClientToScreen({10, 10});
  box->OnMouse(kLeftDown);
  EXPECT_TRUE(driver.wasOpen);
}

TEST_F(HXComboBoxTest, ChoosingWritesTheItemsNumberBetweenTheNotifications) {
  HXComboBox* box = Make("0/Low|50/Medium|100/High");
  Draw(*box);
  std::vector<std::int32_t> seen;
  owner.onChange = [&](int) { seen.push_back(value); };
  const MenuDriver driver(1);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_EQ(value, 50);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{0, 50}));
  EXPECT_EQ(owner.changes, (std::vector<Change>{{9, box, kChangeBegins}, {9, box, kChangeDone}}));
  EXPECT_TRUE(NeedsDisplay(*box));
}

TEST_F(HXComboBoxTest, ChoosingTheCurrentItemNotifiesAllTheSame) {
  value = 1;
  HXComboBox* box = Make("Low|Medium");
  const MenuDriver driver(1);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_EQ(value, 1);
  EXPECT_EQ(owner.changes.size(), 2U);
}

TEST_F(HXComboBoxTest, ClosingTheMenuChangesNothing) {
  value = 1;
  HXComboBox* box = Make("Low|Medium");
  const MenuDriver driver(MenuDriver::kOutside);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_TRUE(driver.wasOpen);
  EXPECT_EQ(value, 1);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXComboBoxTest, ItemsOfTheSameNumberAreAllTicked) {
  HXComboBox* box = Make("0/First|1/Other|0/Second");
  const MenuDriver driver(MenuDriver::kOutside);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_EQ(driver.ticks, (std::vector<bool>{true, false, true}));
}

TEST_F(HXComboBoxTest, EmptyTextIsMenuItemInTheMenuAndEmptyInTheField) {
  HXComboBox* box = Make("|Other");
  EXPECT_EQ(TextInk(*box, true), 0);
  const MenuDriver driver(MenuDriver::kOutside);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_EQ(driver.titles, (std::vector<std::string>{"Menu Item", "Other"}));
}

TEST_F(HXComboBoxTest, OtherEventsOpenNoMenuAndDoNotRedraw) {
  HXComboBox* box = Make("Low|Medium");
  Draw(*box);
  for (const MouseKind kind : {kMouseMove, kLeftUp, kLeftDouble, kRightDown, kOtherDown}) {
    box->OnMouse(kind);
    EXPECT_FALSE(NeedsDisplay(*box)) << kind;
  }
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXComboBoxTest, UnboundFieldIsInert) {
  auto* box = Bind(new HXComboBox(window.get(), {50, 50}, "Low|Medium", nullptr, true));
  Draw(*box);
  const MenuDriver driver(0);
  box->OnMouse(kMouseEntered);
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_FALSE(driver.wasOpen);
  EXPECT_FALSE(NeedsDisplay(*box));
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXComboBoxTest, OwnerMayDeleteTheFieldInEitherNotification) {
  for (const int deadly : {kChangeBegins, kChangeDone}) {
    value = 0;
    HXComboBox* box = Make("Low|Medium");
    owner.onChange = [&](int notification) {
      if (notification == deadly) delete box;
    };
    WarpPointer(*window, {5, 5});
    const MenuDriver driver(1);
    SendMouse(NSLeftMouseDown, *box, {5, 5});
    EXPECT_EQ(value, deadly == kChangeDone ? 1 : 0);
    EXPECT_TRUE(window->GetChildren().empty());
  }
}

TEST_F(HXComboBoxTest, FieldMayBeDeletedWhileItsMenuIsOpen) {
  HXComboBox* box = Make("Low|Medium");
  MenuDriver driver(1);
  driver.whenOpen = [&] { delete box; };
  SendMouse(NSLeftMouseDown, *box, {5, 5});
  EXPECT_TRUE(driver.wasOpen);
  EXPECT_EQ(value, 0);
  EXPECT_TRUE(owner.changes.empty());
}

TEST_F(HXComboBoxTest, TheTextIsInBoldTahomaOfTenPointsWithinTheFace) {
  const struct {
    bool light;
    bool bound;
    HXColor color;
  } table[] = {{true, true, {211, 214, 215, 255}},
               {true, false, {180, 180, 180, 255}},
               {false, true, {0, 0, 0, 255}},
               {false, false, {75, 75, 75, 255}}};
  // The longer one does not fit.
  for (const std::string text : {"64-bit", "A text that is wider than its field"}) {
    for (const auto& row : table) {
      HXComboBox* box = Make("0/" + text, row.light);
      if (!row.bound) {
        delete box;
        box = new HXComboBox(window.get(), {50, 50}, "0/" + text, nullptr, row.light);
      }
      const auto drawn = Draw(*box);
      delete box;
      const EmbeddedFile& face = row.light ? kComboLightTextPng : kComboBlackTextPng;
      const HXBitmap background(face.bytes, face.length);
      PaintedPanel expected(window.get(), kSize, [&](HXCocoaDC& dc) {
        dc.DrawBitmap(background, {0, 0}, kSize);
        dc.SetFont("Tahoma", HXCocoaDC::kBold, 10);
        dc.SetTextColor(row.color);
        dc.SetClipRect({4, 1, 86, 13});
        dc.DrawText(text, {0, 2, 94, 13}, HXCocoaDC::kCentre);
      });
      EXPECT_EQ(CountUnlike(*drawn, *Draw(expected)), 0) << text << row.light << row.bound;
    }
  }
}

}  // namespace
