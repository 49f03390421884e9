#pragma once

#include <cstdint>

class HXObject;

/// What a value control tells its owner about a change of its value.
enum ChangeNotification : int {
  kChangeBegins = 0,
  kChangeStep = 1,
  kChangeDone = 2,
};

/// The part of a widget that edits a value of its owner: a control keeps a
/// pointer to the owner's variable, reads it when it draws, writes it in place
/// and reports each change through the change callback. The variable must
/// outlive the control; a null pointer makes the control inert.
/// Main thread only.
class HXControl {
 public:
  /// Called with the bound target, the bound command id, the control that
  /// changed and a `ChangeNotification`. May delete the control.
  using ChangeHandler = void (*)(HXObject* target, std::uint32_t commandId, HXControl* sender,
                                 int notification);

  virtual ~HXControl() = default;

  /// Binds the callback; null unbinds. The target must outlive the control.
  void SetChangeHandler(ChangeHandler newHandler, HXObject* newTarget, std::uint32_t newCommandId);

 protected:
  HXControl() = default;
  HXControl(const HXControl&) = default;
  HXControl& operator=(const HXControl&) = default;

  /// Calls the callback, if there is one. `self` is the widget that this
  /// control is; false when the callback has deleted it.
  bool NotifyChange(HXObject* self, int notification);

 private:
  ChangeHandler handler = nullptr;
  HXObject* target = nullptr;
  std::uint32_t commandId = 0;
};
