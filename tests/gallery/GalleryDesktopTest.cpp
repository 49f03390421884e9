#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

/// The programs of a desktop that the gallery asks for something.
class GalleryDesktopTest : public GalleryTest {
 protected:
  void SetUp() override {}

  /// A viewer of files and of "https", known to the machine, before the gallery starts.
  void InstallRecipient() {
    machine.MakeFolder("Applications/GWorkspace.app/Resources");
    std::filesystem::copy_file(OSTREL_RECIPIENT, Bundle() + "/GWorkspace");
    std::ofstream(Bundle() + "/Resources/Info-gnustep.plist")
        << "{ ApplicationName = GWorkspace; NSExecutable = GWorkspace;"
           "  CFBundleURLTypes = ({ CFBundleURLSchemes = (https); }); }\n";
    machine.Register();
  }

  void StartOnDialogs() {
    GalleryTest::SetUp();
    Show(kDialogs);
  }

  void ClickReveal() { ClickAt(635, 87); }
  void ClickOpenUrl() { ClickAt(635, 121); }

  /// Waits for the recipient to have been asked for this and nothing else.
  testing::AssertionResult IsAskedFor(const std::string& request) const {
    std::string requests;
    const bool isAsked = WaitUntil([&] {
      std::ostringstream text;
      text << std::ifstream(Bundle() + "/requests").rdbuf();
      requests = text.str();
      return requests == request + "\n";
    });
    if (isAsked) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "asked for: " << requests;
  }

  /// Waits for an answer that shows that the gallery is as usable as before.
  testing::AssertionResult GoesOn() {
    ClickAt(635, 53);
    return LogIs({"Clipboard: copied"});
  }

  std::string Bundle() const { return machine.Path("Applications/GWorkspace.app"); }
};

TEST_F(GalleryDesktopTest, TheFileViewerIsAskedToShowTheFile) {
  InstallRecipient();
  StartOnDialogs();
  ClickReveal();
  EXPECT_TRUE(IsAskedFor("select / in <>"));
  EXPECT_TRUE(GoesOn());
}

TEST_F(GalleryDesktopTest, WhoIsInChargeOfTheSchemeIsAskedToOpenTheURL) {
  InstallRecipient();
  StartOnDialogs();
  ClickOpenUrl();
  EXPECT_TRUE(IsAskedFor("open https://example.com/"));
  EXPECT_TRUE(GoesOn());
}

TEST_F(GalleryDesktopTest, WithNobodyToAskNothingHappens) {
  StartOnDialogs();
  const Picture before = LookAt({560, 0, 200, 30});
  ClickReveal();
  ClickOpenUrl();
  EXPECT_TRUE(GoesOn());
  EXPECT_TRUE(IsUp(kTitle)) << "an alert has come up";
  EXPECT_TRUE(LookAt({560, 0, 200, 30}) == before);
}

}  // namespace
