#include <signal.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "Src/HXUI/Cocoa/Clipboard.h"
#include "Src/HXUI/Cocoa/Conversions.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream stream(path);
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

/// What all programs of a session share ends while one of them needs it: the daemon that
/// learns which one is active, and the one that keeps what was copied. Needs a session of
/// its own.
class LostDaemonTest : public ToolkitFixture {
 protected:
  /// GNUstep's programs find each other by this variable.
  static bool IsOfThisSession(const std::filesystem::path& process) {
    const std::string word = std::string("TEMP=") + std::getenv("TEMP");
    return ('\0' + ReadFile(process / "environ")).find('\0' + word + '\0') != std::string::npos;
  }

  static bool HasEnded(const std::filesystem::path& process) {
    const std::string state = ReadFile(process / "stat");
    return state.empty() || state.find(") Z ") != std::string::npos;
  }

  static std::vector<std::filesystem::path> Daemons(const char* name) {
    std::vector<std::filesystem::path> daemons;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
      const std::filesystem::path& process = entry.path();
      if (ReadFile(process / "comm") == std::string(name) + "\n" && IsOfThisSession(process) &&
          !HasEnded(process)) {
        daemons.push_back(process);
      }
    }
    return daemons;
  }

  /// Without serving an event in between: nobody has noticed it when this returns.
  static void KillDaemon(const char* name) {
    const std::vector<std::filesystem::path> daemons = Daemons(name);
    ASSERT_EQ(daemons.size(), 1u);
    kill(std::stoi(daemons.front().filename()), SIGKILL);
    NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:30];
    while (!HasEnded(daemons.front()) && [limit timeIntervalSinceNow] > 0) {
      [NSThread sleepForTimeInterval:0.001];
    }
    ASSERT_TRUE(HasEnded(daemons.front()));
  }
};

TEST_F(LostDaemonTest, BecomingActiveAndNotIsNoMatterOfLifeAndDeath) {
  for (int i = 0; i < 3; ++i) {
    [NSApp activateIgnoringOtherApps:YES];
    PumpUntil([] { return [NSApp isActive]; }, "the program is not active");
    ASSERT_NO_FATAL_FAILURE(KillDaemon("gdnc"));
    EXPECT_NO_THROW([NSApp deactivate]);
    EXPECT_FALSE([NSApp isActive]);
    EXPECT_NO_THROW([NSApp activateIgnoringOtherApps:YES]);
    PumpUntil([] { return Daemons("gdnc").size() == 1; }, "no daemon has taken its place");
  }
}

TEST_F(LostDaemonTest, TheNextCopyFindsAnotherPasteboard) {
  for (int i = 0; i < 3; ++i) {
    const std::string text = "copy " + std::to_string(i);
    SetClipboardText("lost");
    ASSERT_NO_FATAL_FAILURE(KillDaemon("gpbs"));
    EXPECT_NO_THROW(SetClipboardText(text));
    EXPECT_TRUE([[[NSPasteboard generalPasteboard] stringForType:NSStringPboardType]
        isEqual:ToNative(text)]);
  }
}

}  // namespace
