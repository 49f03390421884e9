#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "Src/HXUI/HXWindow.h"

class HXLayout;

/// A modal message box: a centred text and one or two buttons. Constructed by
/// its caller, usually on the stack, run with `RunModal` and destroyed.
///
/// `RunModal` gives 0 for "OK" and "YES", 1 for "NO" and for the close button.
/// As wide as the text plus 40 pixels, also when the buttons then do not fit.
class HXPopupDialog : public HXWindow {
 public:
  /// `owner` is disabled while the dialog runs; may be null. Texts are UTF-8.
  /// `yesNo` gives "YES" and "NO" in place of "OK"; with `cancelStyle` they read
  /// "YES (CANCEL)" and "NO" and are wider. `withDontShow` adds a check box.
  HXPopupDialog(HXWindow* owner, const std::string& title, const std::string& message, bool yesNo,
                bool cancelStyle, bool withDontShow);

  /// Whether the user ticked "Don't show again".
  bool IsDontShowAgain() const { return dontShowAgain != 0; }

  void Draw() override;
  /// The insert-newline key answers with the first button, Escape with the
  /// second. Return typed into the dialog itself (13) does nothing.
  bool OnKeyDown(int key) override;

 private:
  std::unique_ptr<HXLayout> BuildButtons(bool yesNo, bool cancelStyle);
  std::unique_ptr<HXLayout> BuildDontShow();
  void OnButton(std::uint32_t eventCode);
  void EndWith(std::uint32_t answer);

  std::uint8_t dontShowAgain = 0;
  std::string text;
};
