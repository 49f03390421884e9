#include "Src/HXUI/Cocoa/FilePanels.h"

#include <chrono>
#include <fstream>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "tests/Src/HXUI/NativeEvents.h"
#include "tests/Src/HXUI/ToolkitFixture.h"
#include "tests/support/TemporaryFolder.h"

/// Acts once as the user of the file dialog that comes up next, and puts an end
/// to a dialog that has not ended by that.
@interface PanelUser : NSObject {
 @public
  std::function<void(NSSavePanel*)> action;
  std::chrono::steady_clock::time_point end;
}
- (void)look:(NSTimer*)timer;
@end

@implementation PanelUser
- (void)look:(NSTimer*)timer {
  NSWindow* modal = [NSApp modalWindow];
  if (![modal isKindOfClass:[NSSavePanel class]] || ![modal isVisible]) return;
  if (action) {
    const std::function<void(NSSavePanel*)> once = std::move(action);
    action = nullptr;
    end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    once(static_cast<NSSavePanel*>(modal));
    // A modal run that was stopped by a timer goes on to wait for the next event.
    PostEmptyEvent();
  } else if (std::chrono::steady_clock::now() > end) {
    ADD_FAILURE() << "the dialog did not end";
    [timer invalidate];
    [NSApp abortModal];
    PostEmptyEvent();
  }
}

@end

namespace {

class FilePanelsTest : public ToolkitFixture {
 protected:
  ~FilePanelsTest() override { StopWatching(); }

  /// Gives the next dialog a user, who is to end it.
  void WhenShown(std::function<void(NSSavePanel*)> action) {
    StopWatching();
    PanelUser* user = [[[PanelUser alloc] init] autorelease];
    user->action = std::move(action);
    watch = [[NSTimer timerWithTimeInterval:0.01
                                     target:user
                                   selector:@selector(look:)
                                   userInfo:nil
                                    repeats:YES] retain];
    [[NSRunLoop currentRunLoop] addTimer:watch forMode:NSModalPanelRunLoopMode];
  }

  /// Types into the name field, which has the keyboard.
  static void TypeName(NSSavePanel* panel, NSString* name) {
    [static_cast<NSTextView*>([panel firstResponder]) insertText:name];
  }

  static void Confirm(NSSavePanel* panel) { [[panel defaultButtonCell] performClick:nil]; }
  static void Cancel(NSSavePanel* panel) { [panel cancel:nil]; }

  static NSBrowser* BrowserOf(NSSavePanel* panel) {
    return [[panel contentView] viewWithTag:NSFileHandlingPanelBrowser];
  }

  /// What the dialog offers in the folder that it shows.
  static std::vector<std::string> Offered(NSSavePanel* panel) {
    NSBrowser* browser = BrowserOf(panel);
    std::vector<std::string> names;
    for (NSCell* cell in [[browser matrixInColumn:[browser lastColumn]] cells]) {
      names.push_back(FromNative([cell stringValue]));
    }
    return names;
  }

  /// Clicks on the entries with these names.
  static void Select(NSSavePanel* panel, const std::vector<std::string>& names) {
    NSBrowser* browser = BrowserOf(panel);
    NSMatrix* matrix = [browser matrixInColumn:[browser lastColumn]];
    [matrix deselectAllCells];
    for (NSUInteger row = 0; row < [[matrix cells] count]; ++row) {
      NSCell* cell = [matrix cellAtRow:static_cast<NSInteger>(row) column:0];
      if (std::find(names.begin(), names.end(), FromNative([cell stringValue])) == names.end()) {
        continue;
      }
      const auto index = static_cast<NSInteger>(row);
      [matrix setSelectionFrom:index to:index anchor:index highlight:YES];
    }
    [browser doClick:matrix];
  }

  TemporaryFolder folder;

 private:
  void StopWatching() {
    [watch invalidate];
    [watch release];
    watch = nil;
  }

  NSTimer* watch = nil;
};

using Paths = std::vector<std::string>;

// Folder

TEST_F(FilePanelsTest, TheFolderDialogStartsInTheStartFolderAndReturnsIt) {
  const std::string start = folder.AddFolder("start größer");
  WhenShown(Confirm);
  EXPECT_EQ(ChooseFolder("Custom Folder", start), start);
}

TEST_F(FilePanelsTest, TheFolderDialogReturnsTheChosenFolder) {
  const std::string chosen = folder.AddFolder("b");
  folder.AddFolder("a");
  WhenShown([](NSSavePanel* panel) {
    Select(panel, {"b"});
    Confirm(panel);
  });
  EXPECT_EQ(ChooseFolder("Custom Folder", folder.path), chosen);
}

TEST_F(FilePanelsTest, TheFolderDialogOffersFoldersOnly) {
  folder.AddFolder("sub");
  folder.AddFile("file.png");
  WhenShown([](NSSavePanel* panel) {
    auto* open = static_cast<NSOpenPanel*>(panel);
    EXPECT_TRUE([open canChooseDirectories]);
    EXPECT_FALSE([open canChooseFiles]);
    EXPECT_TRUE([open canCreateDirectories]);
    EXPECT_FALSE([open allowsMultipleSelection]);
    EXPECT_EQ(Offered(panel), Paths{"sub"});
    Cancel(panel);
  });
  EXPECT_EQ(ChooseFolder("Custom Folder", folder.path), "");
}

TEST_F(FilePanelsTest, ThePromptIsOnTheDefaultButton) {
  std::string nameLabel;
  WhenShown([&nameLabel](NSSavePanel* panel) {
    EXPECT_EQ(FromNative([[panel defaultButtonCell] title]), "Custom Folder");
    nameLabel = FromNative([panel nameFieldLabel]);
    Cancel(panel);
  });
  ChooseFolder("Custom Folder", folder.path);
  EXPECT_NE(nameLabel, "Custom Folder");
}

TEST_F(FilePanelsTest, TheWholePromptCanBeRead) {
  WhenShown([](NSSavePanel* panel) {
    [panel display];
    NSCell* cell = [panel defaultButtonCell];
    ASSERT_NE([cell controlView], nil);
    const NSRect button = [[cell controlView] frame];
    EXPECT_GE(button.size.width, [cell cellSize].width);
    // It grows to the left: as far from the right edge as the field for the name above it.
    NSView* field = static_cast<NSView*>([panel firstResponder]);
    while (field != nil && ![field isKindOfClass:[NSForm class]]) field = [field superview];
    ASSERT_NE(field, nil);
    EXPECT_NEAR(NSMaxX(button), NSMaxX([field frame]), 2);
    Cancel(panel);
  });
  ChooseFolder("Custom Folder", folder.path);
}

TEST_F(FilePanelsTest, ACancelledFolderDialogReturnsNothing) {
  WhenShown(Cancel);
  EXPECT_EQ(ChooseFolder("Custom Folder", folder.path), "");
}

TEST_F(FilePanelsTest, AnEmptyOrMissingStartFolderStillShowsTheDialog) {
  for (const std::string& start : {std::string(), folder.Path("missing"), std::string("\xFF")}) {
    bool shown = false;
    WhenShown([&shown](NSSavePanel* panel) {
      shown = true;
      Cancel(panel);
    });
    EXPECT_EQ(ChooseFolder("", start), "");
    EXPECT_TRUE(shown);
  }
}

TEST_F(FilePanelsTest, AFolderDialogThatIsAbortedReturnsNothing) {
  NSSavePanel* shown = nil;
  WhenShown([&shown](NSSavePanel* panel) {
    shown = panel;
    [NSApp abortModal];
  });
  EXPECT_EQ(ChooseFolder("Custom Folder", folder.path), "");
  EXPECT_FALSE([shown isVisible]);
}

// Open

TEST_F(FilePanelsTest, TheOpenDialogChoosesFilesOnly) {
  WhenShown([](NSSavePanel* panel) {
    auto* open = static_cast<NSOpenPanel*>(panel);
    EXPECT_TRUE([open canChooseFiles]);
    EXPECT_FALSE([open canChooseDirectories]);
    EXPECT_FALSE([open canCreateDirectories]);
    EXPECT_FALSE([open allowsMultipleSelection]);
    EXPECT_EQ(FromNative([[panel defaultButtonCell] title]), "Pick");
    Cancel(panel);
  });
  EXPECT_EQ(ChooseOpenFiles("Pick", folder.path.c_str(), nullptr, false), Paths());
}

TEST_F(FilePanelsTest, TheOpenDialogReturnsTheChosenFile) {
  const std::string file = folder.AddFile("größer.png");
  WhenShown([](NSSavePanel* panel) {
    Select(panel, {"größer.png"});
    Confirm(panel);
  });
  EXPECT_EQ(ChooseOpenFiles("Open", folder.path.c_str(), nullptr, false), Paths{file});
}

TEST_F(FilePanelsTest, TheOpenDialogReturnsEveryChosenFileInItsOrder) {
  const std::string third = folder.AddFile("c.png");
  const std::string first = folder.AddFile("a.png");
  folder.AddFile("b.png");
  WhenShown([](NSSavePanel* panel) {
    EXPECT_TRUE([static_cast<NSOpenPanel*>(panel) allowsMultipleSelection]);
    Select(panel, {"c.png", "a.png"});
    Confirm(panel);
  });
  EXPECT_EQ(ChooseOpenFiles("Open", folder.path.c_str(), nullptr, true), (Paths{first, third}));
}

TEST_F(FilePanelsTest, WithoutAFilterEveryFileIsOffered) {
  folder.AddFile("a.png");
  folder.AddFile("b");
  folder.AddFile("c.TIFF");
  WhenShown([](NSSavePanel* panel) {
    EXPECT_EQ(Offered(panel), (Paths{"a.png", "b", "c.TIFF"}));
    Cancel(panel);
  });
  ChooseOpenFiles("Open", folder.path.c_str(), nullptr, false);
}

TEST_F(FilePanelsTest, AFilterOffersItsTypesInBothSpellings) {
  for (const char* name : {"a.png", "b.PNG", "c.Png", "d.jpg", "e.obj", "f"}) folder.AddFile(name);
  folder.AddFolder("sub");
  WhenShown([](NSSavePanel* panel) {
    EXPECT_EQ(Offered(panel), (Paths{"a.png", "b.PNG", "d.jpg", "sub"}));
    Cancel(panel);
  });
  ChooseOpenFiles("Open", folder.path.c_str(), ".png;.jpg", false);
}

TEST_F(FilePanelsTest, AFilterWithoutAKnownTypeOffersNoFile) {
  for (const char* name : {"a.png", "b.PNG", "c"}) folder.AddFile(name);
  folder.AddFolder("sub");
  for (const char* filter : {".PNG", "", ".tiff"}) {
    WhenShown([](NSSavePanel* panel) {
      EXPECT_EQ(Offered(panel), Paths{"sub"});
      Cancel(panel);
    });
    EXPECT_EQ(ChooseOpenFiles("Open", folder.path.c_str(), filter, false), Paths());
  }
}

TEST_F(FilePanelsTest, ADialogKnowsNothingOfTheFormerOnesFilter) {
  folder.AddFile("a.png");
  folder.AddFile("b.txt");
  for (const char* filter : {".PNG", ".png"}) {
    WhenShown(Cancel);
    ChooseOpenFiles("Open", folder.path.c_str(), filter, true);
  }
  WhenShown([](NSSavePanel* panel) {
    EXPECT_EQ(Offered(panel), (Paths{"a.png", "b.txt"}));
    Cancel(panel);
  });
  ChooseOpenFiles("Open", folder.path.c_str(), nullptr, false);
}

// Save

TEST_F(FilePanelsTest, TheSaveDialogReturnsThePathTyped) {
  WhenShown([](NSSavePanel* panel) {
    EXPECT_EQ(FromNative([[panel defaultButtonCell] title]), "Keep");
    TypeName(panel, @"größer.txt");
    Confirm(panel);
  });
  EXPECT_EQ(ChooseSaveFile("Keep", folder.path.c_str(), nullptr), folder.Path("größer.txt"));
}

TEST_F(FilePanelsTest, TheSaveDialogAddsTheFiltersExtension) {
  WhenShown([](NSSavePanel* panel) {
    EXPECT_TRUE(
        [[panel allowedFileTypes] isEqual:([NSArray arrayWithObjects:@"obj", @"OBJ", nil])]);
    TypeName(panel, @"shape");
    Confirm(panel);
  });
  EXPECT_EQ(ChooseSaveFile("Save", folder.path.c_str(), ".obj"), folder.Path("shape.obj"));
}

TEST_F(FilePanelsTest, ASaveFilterWithoutAKnownTypeLeavesTheName) {
  WhenShown([](NSSavePanel* panel) {
    TypeName(panel, @"shape.xyz");
    Confirm(panel);
  });
  EXPECT_EQ(ChooseSaveFile("Save", folder.path.c_str(), ".png"), folder.Path("shape.xyz"));
}

TEST_F(FilePanelsTest, ACancelledSaveDialogReturnsNothing) {
  WhenShown(Cancel);
  EXPECT_EQ(ChooseSaveFile("Save", nullptr, nullptr), "");
}

}  // namespace
