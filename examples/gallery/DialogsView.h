#pragma once

#include "examples/gallery/GalleryView.h"

class HXHelpTip;
class HXWindow;

/// A button for each dialog, panel and service of the desktop.
class DialogsView : public GalleryView {
 public:
  /// `galleryWindow` is disabled while a dialog runs.
  DialogsView(HXObject* parent, EventLog& log, HXWindow& galleryWindow);

  /// Puts the help tip away when the pointer presses anything.
  void OnEventSink(HXEventSinkRecord& record) override;
  std::string Values() const override;

 private:
  using Action = void (DialogsView::*)();

  void AddButton(HXPoint position, const char* label, Action action);
  void OnButton(std::uint32_t eventCode);

  void RunMessage();
  void RunQuestion();
  void RunCancelQuestion();
  void RunDontShow();
  void RunInput();
  void RunColor();
  void ShowHelpTip();
  void RunChooseFolder();
  void RunOpen();
  void RunOpenMany();
  void RunSave();
  void CopyText();
  void Reveal();
  void OpenPage();

  void RunPopup(const char* title, const char* message, bool yesNo, bool cancelStyle,
                bool withDontShow);
  void ShowPath(const char* what, const std::string& path);

  HXWindow& window;
  HXHelpTip* helpTip;
  std::vector<Action> actions;
  std::string input = "Preset";
  std::string lastPath;
  int answer = 0;
  bool dontShow = false;
  HXColor color{116, 200, 243, 255};
};
