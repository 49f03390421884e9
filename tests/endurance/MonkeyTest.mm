#include "tests/endurance/Monkey.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "Src/HXUI/HXSystemButton.h"
#include "examples/gallery/GalleryWindow.h"
#include "tests/installer/WizardFixture.h"

namespace {

std::uint64_t NumberFrom(const char* variable, std::uint64_t otherwise) {
  const char* text = std::getenv(variable);
  return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

/// Asks before it closes as the wizard does, but hardly ever agrees: building another
/// one takes longer than all that a monkey does to it before it finds the way out.
class LastingWizard : public InstallerUI {
 public:
  using InstallerUI::InstallerUI;

  bool CanClose() override {
    constexpr int kRequests = 40;
    return InstallerUI::CanClose() && ++requests % kRequests == 0;
  }

 private:
  int requests = 0;
};

/// MONKEY_SEED and MONKEY_EVENTS choose another game, or a longer one.
class MonkeyTest : public WizardFixture {
 protected:
  void Play(const std::set<std::string>& slowButtons, std::function<HXWindow&()> findWindow) {
    std::printf("MONKEY_SEED=%llu\n", static_cast<unsigned long long>(seed));
    std::fflush(stdout);
    const auto start = std::chrono::steady_clock::now();
    Monkey monkey(seed, slowButtons, std::move(findWindow));
    monkey.Play(count);
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    std::printf("%llu events in %.0f seconds, %llu windows, %llu events to dialogs and menus\n",
                static_cast<unsigned long long>(monkey.GetSent()), spent.count(),
                static_cast<unsigned long long>(monkey.GetWindowCount()),
                static_cast<unsigned long long>(monkey.GetInterruptions()));
    EXPECT_GE(monkey.GetSent(), count);
    EXPECT_GT(monkey.GetInterruptions(), 0U);
  }

  /// Nothing runs any more that works on the wizard.
  void WaitForWizard() {
    PumpUntil(
        [this] {
          const bool isRunning = ui->GetPage() == InstallerUI::kProgressPage && !ui->installDone;
          return !isRunning && script.Count("gone") == script.Count("create");
        },
        "the run to end");
  }

  /// Another wizard on another machine, whose runs end well or not.
  HXWindow& NewWizard() {
    if (ui != nullptr) {
      WaitForWizard();
      ui.reset();
    }
    ++wizards;
    script.rightsStatus = wizards % 4 == 1 ? -60006 : 0;
    script.copyStatus = wizards % 4 == 2 ? -60031 : 0;
    hosts = std::make_unique<FakeHostSources>();
    AddHosts(wizards % 2 == 0 ? std::vector<std::size_t>{}
                              : std::vector<std::size_t>{2, 4, 6, 9, 11, 13});
    const std::unique_ptr<HostSources> sources = std::move(hosts);
    const auto makeWorld = [this](std::function<void()> redraw) {
      return std::make_unique<ScriptedWorld>(script, std::move(redraw));
    };
    ui = std::make_unique<LastingWizard>(sources, makeWorld);
    ui->SetVisible(true);
    return *ui;
  }

  std::uint64_t seed = NumberFrom("MONKEY_SEED", 1);
  std::uint64_t count = NumberFrom("MONKEY_EVENTS", 1'000'000);
  unsigned wizards = 0;
};

HXSystemButton* FindButton(const HXObject& below, const std::string& label) {
  for (HXObject* child : below.GetChildren()) {
    auto* button = dynamic_cast<HXSystemButton*>(child);
    if (button != nullptr && button->GetLabel() == label) return button;
    if (HXSystemButton* deeper = FindButton(*child, label)) return deeper;
  }
  return nullptr;
}

TEST_F(MonkeyTest, CannotBreakTheWizard) {
  Play({"Browse"}, [this]() -> HXWindow& { return NewWizard(); });
  // All that it has done leaves a wizard that can be walked through.
  script.rightsStatus = 0;
  wizards = 2;
  NewWizard();
  for (std::size_t run = script.Count("gone"); run > 0; --run) CountRun();
  GoToFinish();
  WaitForRun();
}

TEST_F(MonkeyTest, CannotBreakTheGallery) {
  std::unique_ptr<GalleryWindow> gallery;
  Play({"Choose folder", "Open a file", "Open several", "Save"}, [&]() -> HXWindow& {
    gallery = std::make_unique<GalleryWindow>();
    // Other programs would start, one for each press.
    for (const char* label : {"Reveal in viewer", "Open URL"}) {
      FindButton(*gallery, label)->SetHook<HXObject>(nullptr, nullptr, 0);
    }
    gallery->SetVisible(true);
    return *gallery;
  });
  gallery->Close();
  gallery = std::make_unique<GalleryWindow>();
  gallery->SetVisible(true);
  PumpUntil([&] { return gallery->IsKeyWindow(); }, "a new gallery to become key");
}

}  // namespace
