#pragma once

#include "Src/HXUI/HXControlFloatParent.h"
#include "Src/HXUI/HXPanel.h"

/// A row of numeric fields, one beside the other. The fields are its children
/// and tell it whenever one of them has fitted its size. Owned by its parent.
class FieldRow : public HXPanel, public HXControlFloatParent {
 public:
  FieldRow(HXObject* parent, HXPoint position, HXSize size);

  /// Puts the fields side by side again.
  void OnFieldFitted() override;
};
