#pragma once

#include "Src/HXUI/HXTextControl.h"

class HXTextBoxOwner;

/// The text control inside a numeric field, the colour dialog and the input
/// dialog: leaves its keys, and what to do at the end of editing, to its parent
/// when that is an `HXTextBoxOwner`. With any other parent all keys pass.
/// Owned by its parent. Main thread only.
class HXTextBox : public HXTextControl {
 public:
  using HXTextControl::HXTextControl;

  void OnFocusLost() override;
  bool OnKeyDown(int key) override;

 private:
  HXTextBoxOwner* GetOwner() const;
};
