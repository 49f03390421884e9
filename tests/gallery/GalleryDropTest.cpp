#include <memory>

#include "tests/gallery/DragSource.h"
#include "tests/gallery/GalleryTest.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// What another program lets go of over the gallery.
class GalleryDropTest : public GalleryTest {
 protected:
  /// In the middle of two panels of the view: one that takes files, and one that
  /// takes nothing.
  static constexpr Corner kTaking{380, 120};
  static constexpr Corner kNotTaking{130, 120};
  static constexpr Area kPlain{170, 40, 180, 20};
  static constexpr Area kLimited{170, 220, 180, 20};

  void TearDown() override {
    source.reset();
    GalleryTest::TearDown();
  }

  void PickUp(const std::string& offer) {
    source = std::make_unique<DragSource>(SetupFor(machine), desktop, pointer, offer);
    ASSERT_TRUE(source->PickUp());
  }

  void GoTo(Corner place) { MoveTo(place.x, place.y); }

  /// Drops a text onto the middle of a field that is being edited.
  void DropOnto(Area field, const std::string& text) {
    PickUp(DragSource::Text(text));
    GoTo({field.x + field.width / 2, field.y + field.height / 2});
    ASSERT_TRUE(source->IsAccepted());
    ASSERT_TRUE(source->Drop());
  }

  const TemporaryFolder folder;
  std::unique_ptr<DragSource> source;
};

TEST_F(GalleryDropTest, AFileIsTakenByThePanelThatTakesFiles) {
  Show(kPointer);
  PickUp(DragSource::Files({folder.AddFile("mesh.obj")}));
  GoTo(kTaking);
  ASSERT_TRUE(source->IsAccepted());
  ASSERT_TRUE(source->Drop());
  EXPECT_TRUE(LogIs({"Dropped: mesh.obj"}));
}

TEST_F(GalleryDropTest, ANameMayHaveBlanksAndLettersBeyondAscii) {
  Show(kPointer);
  PickUp(DragSource::Files({folder.AddFile("Café à la mer, 2 (b).png")}));
  GoTo(kTaking);
  ASSERT_TRUE(source->IsAccepted());
  ASSERT_TRUE(source->Drop());
  EXPECT_TRUE(LogIs({"Dropped: Café à la mer, 2 (b).png"}));
}

TEST_F(GalleryDropTest, OfSeveralFilesTheFirstOneArrives) {
  Show(kPointer);
  PickUp(DragSource::Files(
      {folder.AddFile("b.png"), folder.AddFile("a.png"), folder.AddFile("c.png")}));
  GoTo(kTaking);
  ASSERT_TRUE(source->IsAccepted());
  ASSERT_TRUE(source->Drop());
  EXPECT_TRUE(LogIs({"Dropped: b.png"}));
}

TEST_F(GalleryDropTest, AFileIsRefusedWhereNothingTakesIt) {
  Show(kPointer);
  PickUp(DragSource::Files({folder.AddFile("mesh.obj")}));
  GoTo(kNotTaking);
  ASSERT_TRUE(source->IsRefused());
  GoTo(kTaking);
  ASSERT_TRUE(source->IsAccepted());
  GoTo(kNotTaking);
  ASSERT_TRUE(source->IsRefused());
  ASSERT_TRUE(source->Drop());
  Settle();
  EXPECT_TRUE(LogIs({}));
}

TEST_F(GalleryDropTest, ATextIsNothingForThePanelThatTakesFiles) {
  Show(kPointer);
  PickUp(DragSource::Text("mesh.obj"));
  GoTo(kTaking);
  // The platform does not even ask a window that takes none of what is offered.
  ASSERT_TRUE(source->Drop());
  Settle();
  EXPECT_TRUE(LogIs({}));
}

TEST_F(GalleryDropTest, ATextGoesIntoTheFieldThatIsBeingEdited) {
  Show(kText);
  SelectAllIn(kPlain);
  keyboard.Type("BackSpace");
  ASSERT_TRUE(HasValue("plain", ""));
  DropOnto(kPlain, "From elsewhere");
  EXPECT_TRUE(HasValue("plain", "From elsewhere"));
}

TEST_F(GalleryDropTest, ADroppedTextBeyondTheMaximumIsTakenBackAsAWhole) {
  Show(kText);
  SelectAllIn(kLimited);
  Type("1234567");
  ASSERT_TRUE(HasValue("at most 8", "1234567"));
  DropOnto(kLimited, "89");
  Settle();
  EXPECT_EQ(Value("at most 8"), "1234567");
  DropOnto(kLimited, "8");
  EXPECT_TRUE(HasValue("at most 8", "12345678"));
}

}  // namespace
