#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "Src/HXUI/HXSystemButton.h"
#include "Src/HXUI/HXTextPanel.h"
#include "bench/Cocoa/Display.h"
#import "bench/Cocoa/PlainPage.h"
#include "bench/GNUstep/XServer.h"
#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"
#include "installer/InstallerTexts.h"
#include "installer/InstallerUI.h"

namespace {

constexpr int kPairs = 61;
constexpr double kBound = 1.05;

/// A machine with six hosts.
class BenchHosts : public HostSources {
 public:
  std::optional<std::string> MarkerDocument() override { return "/Installer/AEFile.aep"; }

  std::optional<std::vector<std::string>> ApplicationsForDocument(const std::string&) override {
    return std::vector<std::string>{"/Applications/CS6/After Effects.app"};
  }

  std::optional<PropertyValue> ReadDictionary(const std::string& path) override {
    if (path != PreferenceFile()) {
      return PropertyValue::Dictionary({{"CFBundleSignature", PropertyValue::String("FXTC")},
                                        {"CFBundleVersion", PropertyValue::String("11.0.1")}});
    }
    std::vector<PropertyEntry> versions;
    for (const char* version : {"14.0", "15.0", "16.0", "17.0", "18.0"}) {
      const std::string folder = std::string("/Applications/") + version + "/Plug-ins";
      versions.push_back({version, PropertyValue::Dictionary(
                                       {{"PluginInstallPath", PropertyValue::String(folder)}})});
    }
    return PropertyValue::Dictionary(std::move(versions));
  }

  std::string PreferenceFile() override { return "/Library/Preferences/host.plist"; }
};

/// Holds an installation back until it may end.
class Gate {
 public:
  void Open() {
    const std::lock_guard lock(mutex);
    isOpen = true;
    changed.notify_all();
  }
  void WaitUntilOpen() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return isOpen; });
  }

 private:
  std::mutex mutex;
  std::condition_variable changed;
  bool isOpen = false;
};

/// Grants everything and does nothing.
class GatedAuthorization : public Authorization {
 public:
  explicit GatedAuthorization(Gate& heldBack) : gate(heldBack) {}
  int Create() override { return 0; }
  int CopyRights(const std::string&) override {
    gate.WaitUntilOpen();
    return 0;
  }
  int ExecuteWithPrivileges(const std::string&, const std::vector<std::string>&,
                            FILE** pipe) override {
    *pipe = nullptr;
    return 0;
  }
  void Free() override {}

 private:
  Gate& gate;
};

class GatedWorld : public InstallationWorld {
 public:
  explicit GatedWorld(Gate& heldBack) : gate(heldBack) {}
  std::unique_ptr<Authorization> MakeAuthorization() override {
    return std::make_unique<GatedAuthorization>(gate);
  }
  std::string ResourcePath(const std::string&, const std::string&) override { return "/Plugin"; }
  std::string DataPath(std::int32_t) override { return "/Data"; }
  bool PathExists(const std::string&) override { return false; }
  bool HasEnvironment(const std::string&) override { return false; }
  void WaitForChild(std::int32_t) override {}
  void RequestRedraw() override {}

 private:
  Gate& gate;
};

/// The text that the scroll bar of the summary moves.
const HXTextPanel& SummaryOf(const InstallerUI& wizard) {
  return dynamic_cast<HXTextPanel&>(*wizard.GetChildren().at(5)->GetChildren().at(1));
}

HXSystemButton& ButtonOf(const InstallerUI& wizard, std::size_t index) {
  return dynamic_cast<HXSystemButton&>(*wizard.GetChildren().at(index));
}

/// What the wizard shows now; the rest is the same on every machine.
PlainPageContent ContentOf(const InstallerUI& wizard) {
  PlainPageContent content;
  content.page = wizard.GetPage();
  content.welcome = InstallerTexts::Welcome();
  content.summary = InstallerTexts::Summary(wizard);
  content.summaryHeight = SummaryOf(wizard).GetSize().height;
  content.progress = InstallerTexts::Progress(wizard);
  for (std::size_t slot = 0; slot < kHostSlotCount; ++slot) {
    if (wizard.hostPath[slot].empty() && slot != kCustomSlot) continue;
    content.hosts.push_back(InstallerTexts::HostLabel(wizard, slot));
    content.ticked.push_back(wizard.hostSelected[slot] != 0);
  }
  for (std::size_t i = 0; i < 3; ++i) {
    const HXSystemButton& button = ButtonOf(wizard, i);
    content.labels[i] = button.GetLabel();
    content.usable[i] = button.IsEnabled();
    content.buttonX[i] = button.GetPosition().x;
    content.buttonWidth[i] = button.GetSize().width;
  }
  return content;
}

bool MeasurePage(const InstallerUI& wizard, NSWindow* plainWindow, const char* name) {
  PlainPage* plain = [[[PlainPage alloc] initWithContent:ContentOf(wizard)] autorelease];
  [plainWindow setContentView:plain];
  NSView* view = wizard.GetNativeView();
  Display::ServeAll();
  Display::DrawAll([view window]);
  Display::DrawAll(plainWindow);
  if (!Display::AreIdentical(Display::Pixels(view), Display::Pixels(plain))) {
    std::fprintf(stderr, "The page \"%s\" and its drawing by hand differ.\n", name);
    return false;
  }
  const PairMedians medians = MeasurePairs(
      kPairs, [&] { return MillisecondsOf([&] { Display::DrawAll([view window]); }); },
      [&] { return MillisecondsOf([&] { Display::DrawAll(plainWindow); }); });
  const std::string work = std::string("full redraw of the page \"") + name + "\"";
  PrintRatio(work.c_str(), "the same pixels by hand with plain AppKit calls", medians, kBound);
  return true;
}

bool MeasureBeforeRun(InstallerUI& wizard, NSWindow* plainWindow) {
  for (const char* name : {"welcome", "agreement", "hosts", "summary"}) {
    if (!MeasurePage(wizard, plainWindow, name)) return false;
    ButtonOf(wizard, 1).Notify(kLeftUp);
  }
  return true;
}

bool MeasureRun(const InstallerUI& wizard, Gate& gate, NSWindow* plainWindow) {
  const bool isMeasured = MeasurePage(wizard, plainWindow, "installing");
  gate.Open();
  const bool hasEnded =
      Display::ServeUntil([&wizard] { return wizard.GetPage() == InstallerUI::kFinishPage; });
  return isMeasured && hasEnded && MeasurePage(wizard, plainWindow, "finished");
}

}  // namespace

bool MeasurePages() {
  // Not over any button, which would light up.
  XServer::MovePointer({1023, 767});
  Gate gate;
  InstallerUI wizard(std::make_unique<BenchHosts>(), [&gate](const std::function<void()>&) {
    return std::make_unique<GatedWorld>(gate);
  });
  NSWindow* plainWindow =
      [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 500, 360)
                                  styleMask:NSTitledWindowMask | NSClosableWindowMask
                                    backing:NSBackingStoreBuffered
                                      defer:NO];
  return Display::Show(plainWindow, 510) && Display::Show([wizard.GetNativeView() window], 0) &&
         MeasureBeforeRun(wizard, plainWindow) && MeasureRun(wizard, gate, plainWindow);
}
