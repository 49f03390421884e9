#include "Src/HXUI/HXTextBox.h"

#include "Src/HXUI/HXTextBoxOwner.h"

void HXTextBoxOwner::OnTextBoxFocusLost(HXTextBox&) {}

HXTextBoxOwner* HXTextBox::GetOwner() const {
  // Asked each time: a parent on its way out is no owner any more.
  return dynamic_cast<HXTextBoxOwner*>(GetParent());
}

void HXTextBox::OnFocusLost() {
  if (HXTextBoxOwner* owner = GetOwner()) owner->OnTextBoxFocusLost(*this);
}

bool HXTextBox::OnKeyDown(int key) {
  HXTextBoxOwner* owner = GetOwner();
  return owner == nullptr || owner->OnTextBoxKeyDown(*this, key);
}
