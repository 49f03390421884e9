#pragma once

/// A widget that wants to hear when one of the numeric fields in it has fitted
/// its size, for example to lay out a row of fields again. Implemented beside
/// `HXObject` by the fields' parent, which the fields find by themselves.
class HXControlFloatParent {
 public:
  virtual ~HXControlFloatParent() = default;

  /// A field has fitted its size to its text; the size may be the same. Must
  /// not delete the field.
  virtual void OnFieldFitted() = 0;

 protected:
  HXControlFloatParent() = default;
  HXControlFloatParent(const HXControlFloatParent&) = default;
  HXControlFloatParent& operator=(const HXControlFloatParent&) = default;
};
