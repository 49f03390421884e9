#include "examples/gallery/FieldRow.h"

#include "examples/gallery/GalleryStyle.h"

namespace {

constexpr std::int32_t kDistance = 12;

}  // namespace

FieldRow::FieldRow(HXObject* parentObject, HXPoint position, HXSize size)
    : HXPanel(parentObject, position, size) {
  SetColor(GalleryStyle::kPanel);
}

void FieldRow::OnFieldFitted() {
  std::int32_t x = kDistance;
  for (HXObject* field : GetChildren()) {
    const HXPoint position{x, field->GetPosition().y};
    // Moving a widget redraws it, so only what has to move does.
    if (position != field->GetPosition()) field->SetPosition(position);
    x += field->GetSize().width + kDistance;
  }
  Redraw();
}
