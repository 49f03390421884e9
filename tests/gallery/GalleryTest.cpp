#include "tests/gallery/GalleryTest.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/endtoend/Waiting.h"
#include "tests/gallery/Keys.h"
#include "tests/gallery/SelectionOwner.h"

namespace {

/// Of the window.
constexpr Area kView{130, 10, 760, 420};
constexpr Area kValues{139, 468, 359, 160};
constexpr Area kFirstValue{kValues.x, kValues.y, kValues.width, TextReader::kLineHeight};
constexpr int kValuesPitch = 14;
constexpr Area kLog{524, 468, 359, 160};
constexpr int kLogPitch = 15;
constexpr Area kClearButton{832, 446, 50, 18};

using Lines = std::vector<std::string>;

std::string Join(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += "\n  " + line;
  return text;
}

/// How often the process has gone to sleep up to now.
long CountSleeps(pid_t process) {
  const std::string name = "voluntary_ctxt_switches:";
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name)) return std::atol(line.c_str() + name.size());
  }
  return 0;
}

}  // namespace

std::unique_ptr<DisplayServer> GalleryTest::server;
TextReader GalleryTest::reader;
bool GalleryTest::isReaderTaught = false;

void GalleryTest::SetUpTestSuite() { server = std::make_unique<DisplayServer>(); }

void GalleryTest::TearDownTestSuite() { server.reset(); }

GalleryTest::GalleryTest()
    : desktop(server->name), pointer(desktop.Connection()), keyboard(desktop.Connection()) {
  pointer.MoveTo(0, 0);
}

void GalleryTest::SetUp() {
  Start();
  if (isReaderTaught || HasFatalFailure()) return;
  TeachReader();
  if (HasFatalFailure()) return;
  // The tests begin with a gallery that nothing has happened in.
  process.reset();
  Start();
}

ChildProcess::Setup GalleryTest::SetupFor(const Machine& machine) {
  ChildProcess::Setup setup;
  setup.environment = machine.Environment();
  setup.environment.push_back("DISPLAY=" + server->name);
  setup.environment.emplace_back("PATH=/usr/local/bin:/usr/bin:/bin");
  for (const char* name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"}) {
    const char* value = std::getenv(name);
    if (value != nullptr) setup.environment.push_back(std::string(name) + "=" + value);
  }
  setup.folder = machine.path;
  setup.errors = machine.Path("errors.log");
  return setup;
}

void GalleryTest::Start() {
  ChildProcess::Setup setup = SetupFor(machine);
  setup.command = {machine.Path("Downloads/Gallery.app/Gallery")};
  process = std::make_unique<ChildProcess>(setup);
  orphans.Except(process->Id());

  ASSERT_TRUE(IsUp(kTitle));
  ASSERT_TRUE(WaitUntil([this] {
    const Picture picture = Look();
    return picture.width == 900 && picture.HasInk(kValues, kPanel) && picture.At(60, 600) == kPage;
  }));
  // When the first press and its release arrive together, GNUstep prepares itself for the mouse
  // in between and then handles the release first. So that click goes where nothing is.
  MoveTo(-70, 590);
  pointer.Press();
  pointer.Release();
  Settle();
}

void GalleryTest::TearDown() {
  if (HasFailure()) {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::filesystem::create_directories(OSTREL_PICTURE_FOLDER);
    desktop.Capture().Write(std::string(OSTREL_PICTURE_FOLDER) + "/" + test->test_suite_name() +
                            "." + test->name() + ".png");
  }
  // A test that failed may have left the button down, and the display is shared.
  pointer.Release();
  process.reset();
  orphans.Kill();
}

void GalleryTest::TeachReader() {
  Show(kText);
  constexpr std::size_t kPortion = 19;
  for (std::size_t at = 0; at < TextReader::kAlphabet.size(); at += kPortion) {
    const std::string letters = TextReader::kAlphabet.substr(at, kPortion);
    // A second lesson for a machine that is too busy for the first one.
    ASSERT_TRUE(TeachLetters(letters) || TeachLetters(letters))
        << "the pasted text is not seen among the values";
  }
  SelectAllIn({170, 40, 180, 20});
  Type("Plain text");
  isReaderTaught = true;
  ASSERT_TRUE(HasValue("plain", "Plain text"));
}

bool GalleryTest::TeachLetters(const std::string& letters) {
  SelectAllIn({170, 40, 180, 20});
  const Picture before = Look().Crop(kFirstValue);
  keyboard.Type("BackSpace");
  if (!WaitUntil([this, &before] { return Look().Crop(kFirstValue) != before; })) return false;
  // Pasted, as there are letters without a key.
  const SelectionOwner owner(server->name, TextReader::Lesson(letters));
  TypeCommand("v");
  return WaitUntil([this, &letters] { return reader.Learn(Look(), kFirstValue, letters); });
}

void GalleryTest::Show(View view) {
  const int y = 29 + 32 * view;
  const auto isChosen = [this, y] {
    return Look().Count({20, y - 10, 90, 20}, [](Color color) { return color == kAccent; }) > 0;
  };
  MoveTo(65 - kView.x, y - kView.y);
  pointer.Click();
  ASSERT_TRUE(WaitUntil(isChosen)) << "view " << view << " does not come up";
}

Area GalleryTest::Content(const char* title) const {
  const std::optional<WindowId> window = desktop.FindWindow(title);
  const std::optional<Area> content = window ? desktop.FindContent(*window) : std::nullopt;
  EXPECT_TRUE(content) << "\"" << title << "\" is not there";
  return content.value_or(Area{});
}

void GalleryTest::MoveTo(int x, int y) {
  const Area content = Content();
  pointer.MoveTo(content.x + kView.x + x, content.y + kView.y + y);
}

void GalleryTest::ClickAt(int x, int y) {
  const Area content = Content();
  pointer.MoveForClick(content.x + kView.x + x, content.y + kView.y + y);
  pointer.Click();
}

void GalleryTest::Focus(Area field) {
  const Picture before = LookAt(field);
  ClickAt(field.x + 2 * field.width / 3, field.y + field.height / 2);
  // Keys that come before the click has been dealt with go elsewhere.
  EXPECT_TRUE(WaitUntil([this, field, &before] { return LookAt(field) != before; }))
      << "no caret in the field at " << field.x << ", " << field.y;
}

void GalleryTest::SelectAllIn(Area field) {
  constexpr int kAttempts = 20;
  const Picture before = LookAt(field);
  ClickAt(field.x + 2 * field.width / 3, field.y + field.height / 2);
  const auto isSelected = [this, field, &before] {
    // Much more than a caret and a frame.
    const Picture now = LookAt(field);
    int changed = 0;
    for (int x = 3; x < field.width - 3; ++x) {
      if (now.At(x, 5) != before.At(x, 5)) ++changed;
    }
    return changed > 15;
  };
  // The key goes elsewhere as long as the click has not been dealt with.
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    TypeCommand("a");
    if (WaitUntil(isSelected, std::chrono::seconds(1))) return;
  }
  ADD_FAILURE() << "nothing is selected in the field at " << field.x << ", " << field.y;
}

void GalleryTest::DoubleClickAt(int x, int y) {
  MoveTo(x, y);
  pointer.Click();
  pointer.Click();
}

void GalleryTest::PressAt(int x, int y) {
  MoveTo(x, y);
  pointer.Press();
  Settle();
}

void GalleryTest::Drag(int fromX, int fromY, int toX, int toY) {
  PressAt(fromX, fromY);
  MoveTo(toX, toY);
  pointer.Release();
}

void GalleryTest::Settle() const {
  // It sleeps between its timers, and only when there is nothing to deal with.
  constexpr long kRounds = 6;
  // When this is answered, the server has passed on all that was sent before.
  EXPECT_EQ(desktop.Capture({0, 0, 1, 1}).width, 1);
  const long before = CountSleeps(process->Id());
  EXPECT_TRUE(WaitUntil([&] { return CountSleeps(process->Id()) >= before + kRounds; }));
}

PopupMenu GalleryTest::OpenMenu(int x, int y, Corner corner) {
  constexpr int kInset = 10;
  const Area content = Content();
  // A second press of a double click opens nothing.
  pointer.MoveForClick(content.x + kView.x + x, content.y + kView.y + y);
  pointer.Press();
  return {desktop, pointer, content.x + kView.x + corner.x + kInset,
          content.y + kView.y + corner.y + kInset};
}

void GalleryTest::Type(const std::string& text) { TypeAnyText(desktop.Connection(), text); }

void GalleryTest::ClearLog() {
  MoveTo(kClearButton.x + 25 - kView.x, kClearButton.y + 9 - kView.y);
  pointer.Click();
  EXPECT_TRUE(LogIs({}));
}

void GalleryTest::ClickIn(const char* title, int x, int y) {
  const Area content = Content(title);
  pointer.MoveForClick(content.x + x, content.y + y);
  pointer.Click();
}

Picture GalleryTest::Look(const char* title) const {
  const std::optional<WindowId> window = desktop.FindWindow(title);
  return window ? desktop.Capture(*window) : Picture();
}

Picture GalleryTest::LookAt(Area area) const {
  return Look().Crop({kView.x + area.x, kView.y + area.y, area.width, area.height});
}

Lines GalleryTest::Values() const { return reader.Read(Look(), kValues, kValuesPitch); }

Lines GalleryTest::Log() const {
  Lines lines = reader.Read(Look(), kLog, kLogPitch);
  for (std::string& line : lines) line.erase(0, std::min(line.size(), line.find("  ") + 2));
  return lines;
}

std::string GalleryTest::Value(const std::string& name) const {
  for (const std::string& line : Values()) {
    // Some lines hold two values.
    for (std::size_t at = 0; at < line.size();) {
      const std::size_t end = std::min(line.size(), line.find(", format", at));
      if (line.compare(at, name.size() + 3, name + " = ") == 0) {
        return line.substr(at + name.size() + 3, end - at - name.size() - 3);
      }
      at = end + 2;
    }
  }
  return {};
}

float GalleryTest::Number(const std::string& name) const {
  return std::strtof(Value(name).c_str(), nullptr);
}

testing::AssertionResult GalleryTest::Judge(bool holds) const {
  if (holds) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "values:" << Join(Values()) << "\nlog:" << Join(Log());
}

testing::AssertionResult GalleryTest::HasValue(const std::string& name,
                                               const std::string& value) const {
  return Judge(WaitUntil([this, &name, &value] { return Value(name) == value; }));
}

testing::AssertionResult GalleryTest::LogEndsWith(const Lines& lines) const {
  return Judge(WaitUntil([this, &lines] {
    const Lines shown = Log();
    return shown.size() >= lines.size() && std::equal(lines.rbegin(), lines.rend(), shown.rbegin());
  }));
}

testing::AssertionResult GalleryTest::LogIs(const Lines& lines) const {
  return Judge(WaitUntil([this, &lines] { return Log() == lines; }));
}

testing::AssertionResult GalleryTest::IsUp(const char* title) const {
  const bool isUp = WaitUntil([this, title] {
    const std::optional<WindowId> window = desktop.FindWindow(title);
    return window && desktop.IsActive(*window);
  });
  if (isUp) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "\"" << title << "\" is not up";
}

testing::AssertionResult GalleryTest::IsGone(const char* title) const {
  if (WaitUntil([this, title] { return desktop.FindWindows(title).empty(); })) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "\"" << title << "\" is still up";
}
