#pragma once

class HXTextBox;

/// A widget or window that edits something of its own in an `HXTextBox`. The
/// parent of the box implements this interface beside `HXObject` and hears of
/// the box from then on; the box finds it by itself. Main thread only.
class HXTextBoxOwner {
 public:
  virtual ~HXTextBoxOwner() = default;

  /// Editing in `box` has ended. May delete the box. The default does nothing.
  virtual void OnTextBoxFocusLost(HXTextBox& box);

  /// A key of `box`, as `HXTextControl` has them. False swallows it, true lets
  /// it do its work in the field. May delete the box.
  virtual bool OnTextBoxKeyDown(HXTextBox& box, int key) = 0;

 protected:
  HXTextBoxOwner() = default;
  HXTextBoxOwner(const HXTextBoxOwner&) = default;
  HXTextBoxOwner& operator=(const HXTextBoxOwner&) = default;
};
