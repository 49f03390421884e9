#include <signal.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
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

  /// Unlike PumpUntil without serving an event: the platform learns of nothing meanwhile.
  static void Await(const std::function<bool()>& condition, const char* what) {
    NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:30];
    while (!condition() && [limit timeIntervalSinceNow] > 0) {
      [NSThread sleepForTimeInterval:0.001];
    }
    ASSERT_TRUE(condition()) << what;
  }

  static void KillDaemon(const char* name) {
    // For a moment there are two: one starts the other.
    ASSERT_NO_FATAL_FAILURE(Await([name] { return Daemons(name).size() == 1; }, "no daemon runs"));
    const std::filesystem::path daemon = Daemons(name).front();
    kill(std::stoi(daemon.filename()), SIGKILL);
    Await([&daemon] { return HasEnded(daemon); }, "it does not end");
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
    PumpUntil([] { return !Daemons("gdnc").empty(); }, "no daemon has taken its place");
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
