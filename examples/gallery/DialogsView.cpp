#include "examples/gallery/DialogsView.h"

#include "Src/HXUI/Cocoa/Clipboard.h"
#include "Src/HXUI/Cocoa/FilePanels.h"
#include "Src/HXUI/Cocoa/NativeWindow.h"
#include "Src/HXUI/Cocoa/Workspace.h"
#include "Src/HXUI/HXColorDialog.h"
#include "Src/HXUI/HXHelpTip.h"
#include "Src/HXUI/HXInputDialog.h"
#include "Src/HXUI/HXPopupDialog.h"
#include "Src/HXUI/HXSystemButton.h"

namespace {

constexpr HXSize kButtonSize{150, 26};
constexpr const char* kStartFolder = "/";
constexpr const char* kFilter = ".png;.jpg;.obj";

}  // namespace

DialogsView::DialogsView(HXObject* parentObject, EventLog& log, HXWindow& galleryWindow)
    : GalleryView(parentObject, log),
      window(galleryWindow),
      // The gallery's window owns the tip, which is a window itself.
      helpTip(new HXHelpTip(&galleryWindow)) {
  AddHeading({20, 14}, "HXPopupDialog");
  AddButton({20, 40}, "Message", &DialogsView::RunMessage);
  AddButton({20, 74}, "Yes or no", &DialogsView::RunQuestion);
  AddButton({20, 108}, "Yes means cancel", &DialogsView::RunCancelQuestion);
  AddButton({20, 142}, "Don't show again", &DialogsView::RunDontShow);
  AddHeading({200, 14}, "Other dialogs");
  AddButton({200, 40}, "HXInputDialog", &DialogsView::RunInput);
  AddButton({200, 74}, "HXColorDialog", &DialogsView::RunColor);
  AddButton({200, 108}, "HXHelpTip", &DialogsView::ShowHelpTip);
  AddHeading({380, 14}, "Files");
  AddButton({380, 40}, "Choose folder", &DialogsView::RunChooseFolder);
  AddButton({380, 74}, "Open a file", &DialogsView::RunOpen);
  AddButton({380, 108}, "Open several", &DialogsView::RunOpenMany);
  AddButton({380, 142}, "Save", &DialogsView::RunSave);
  AddHeading({560, 14}, "Desktop");
  AddButton({560, 40}, "Copy to clipboard", &DialogsView::CopyText);
  AddButton({560, 74}, "Reveal in viewer", &DialogsView::Reveal);
  AddButton({560, 108}, "Open URL", &DialogsView::OpenPage);
  AddEventSink(this);
}

void DialogsView::AddButton(HXPoint position, const char* label, Action action) {
  auto* button = new HXSystemButton(this, position, kButtonSize, label);
  button->SetHook(this, &DialogsView::OnButton, static_cast<std::uint32_t>(actions.size()));
  actions.push_back(action);
}

void DialogsView::OnButton(std::uint32_t eventCode) {
  if (eventCode == kLeftUp) (this->*actions[GetSenderId()])();
}

void DialogsView::OnEventSink(HXEventSinkRecord& record) {
  if (record.kind == kLeftDown && helpTip->IsVisible()) helpTip->SetVisible(false);
}

// Dialogs of the toolkit

void DialogsView::RunPopup(const char* title, const char* message, bool yesNo, bool cancelStyle,
                           bool withDontShow) {
  // Made on the stack, run, and gone again: a dialog lives for one answer.
  HXPopupDialog dialog(&window, title, message, yesNo, cancelStyle, withDontShow);
  answer = dialog.RunModal();
  dontShow = dialog.IsDontShowAgain();
  Log("Dialog: answer " + std::to_string(answer));
}

void DialogsView::RunMessage() {
  RunPopup("Message", "The quick brown fox jumps over the lazy dog.", false, false, false);
}

void DialogsView::RunQuestion() {
  RunPopup("Question", "Does the quick brown fox jump over the lazy dog?", true, false, false);
}

void DialogsView::RunCancelQuestion() {
  RunPopup("Stop", "Shall the quick brown fox stop jumping over the dog?\nThis cannot be undone.",
           true, true, false);
}

void DialogsView::RunDontShow() {
  RunPopup("Hint", "The quick brown fox has jumped over the lazy dog.", false, false, true);
}

void DialogsView::RunInput() {
  HXInputDialog dialog(&window, "Name", input.c_str());
  answer = dialog.RunModal();
  if (answer == 0) input = dialog.GetValue();
  Log("Input: answer " + std::to_string(answer) + ", \"" + dialog.GetValue() + "\"");
}

void DialogsView::RunColor() {
  HXColorDialog dialog(&window, &color);
  Watch(dialog, "Colour");
  dialog.RunModal();
  Log(dialog.IsAccepted() ? "Colour: accepted" : "Colour: cancelled");
}

void DialogsView::ShowHelpTip() {
  // On the screen y grows upward; the tip's point counts from the top.
  const HXPoint corner = GetSender()->ClientToScreen({0, 0});
  const HXPoint place{corner.x, NativeWindow::GetScreenHeight() - corner.y};
  helpTip->Show(place, "Help tip",
                "A borderless window above all others. It wraps its text and goes away with the "
                "next press.");
}

// Panels of the platform

void DialogsView::ShowPath(const char* what, const std::string& path) {
  lastPath = path;
  const std::string name = path.substr(path.rfind('/') + 1);
  Log(std::string(what) + ": " + (path.empty() ? "cancelled" : name));
}

void DialogsView::RunChooseFolder() { ShowPath("Folder", ChooseFolder("Choose", kStartFolder)); }

void DialogsView::RunOpen() {
  const auto paths = ChooseOpenFiles("Open", kStartFolder, kFilter, false);
  ShowPath("Open", paths.empty() ? "" : paths.front());
}

void DialogsView::RunOpenMany() {
  // No filter: any file.
  const auto paths = ChooseOpenFiles("Open", kStartFolder, nullptr, true);
  for (const std::string& path : paths) ShowPath("Open", path);
  if (paths.empty()) ShowPath("Open", "");
}

void DialogsView::RunSave() { ShowPath("Save", ChooseSaveFile("Save", kStartFolder, ".obj")); }

// The desktop

void DialogsView::CopyText() {
  SetClipboardText("Copied from the gallery");
  Log("Clipboard: copied");
}

void DialogsView::Reveal() { RevealInFileViewer(lastPath.empty() ? kStartFolder : lastPath); }

void DialogsView::OpenPage() { OpenURL("https://example.com/"); }

std::string DialogsView::Values() const {
  return Line("answer", answer) + Line("don't show again", dontShow ? 1 : 0) +
         Line("input", input) + Line("path", lastPath);
}
