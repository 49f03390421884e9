#include "Src/HXUI/HXLayout.h"

#include <algorithm>
#include <utility>

#include "Src/HXUI/HXObject.h"

HXLayout::HXLayout(Orientation layoutOrientation) : orientation(layoutOrientation) {}
HXLayout::~HXLayout() = default;

void HXLayout::AddWidget(HXObject* widget, bool stretch) {
  items.push_back({.widget = widget, .stretch = stretch, .kind = kWidget});
}

void HXLayout::AddLayout(std::unique_ptr<HXLayout> layout, bool stretch) {
  items.push_back({.layout = std::move(layout), .stretch = stretch, .kind = kLayout});
}

void HXLayout::AddGap(std::int32_t length) { items.push_back({.gap = length, .kind = kGap}); }

void HXLayout::AddSpacer() { items.push_back({.stretch = true, .kind = kSpacer}); }

void HXLayout::RemoveWidget(const HXObject* widget) {
  for (Item& item : items) {
    // The widget may go while its items are being placed, so each leaves an
    // empty gap behind instead of changing the list.
    if (item.kind == kWidget && item.widget == widget) item = {.kind = kGap};
    if (item.kind == kLayout) item.layout->RemoveWidget(widget);
  }
}

HXSize HXLayout::NaturalSize(const Item& item) const {
  switch (item.kind) {
    case kWidget:
      return item.widget->GetSize();
    case kLayout:
      return item.layout->Measure();
    case kGap:
      return orientation == kRow ? HXSize{item.gap, 0} : HXSize{0, item.gap};
    case kSpacer:
      break;
  }
  return {};
}

HXSize HXLayout::Measure() const {
  HXSize total;
  for (const Item& item : items) {
    const HXSize size = NaturalSize(item);
    if (orientation == kRow) {
      total.width += size.width;
      total.height = std::max(total.height, size.height);
    } else {
      total.width = std::max(total.width, size.width);
      total.height += size.height;
    }
  }
  return {std::max(total.width, minSize.width), std::max(total.height, minSize.height)};
}

void HXLayout::Apply(HXSize given) {
  const bool row = orientation == kRow;
  const HXSize measured = Measure();
  std::int32_t spare = row ? given.width - measured.width : given.height - measured.height;
  auto waiting = static_cast<std::int32_t>(
      std::count_if(items.begin(), items.end(), [](const Item& item) { return item.stretch; }));

  HXPoint cursor = origin;
  for (Item& item : items) {
    const HXSize natural = NaturalSize(item);
    std::int32_t length = row ? natural.width : natural.height;
    if (item.stretch) {
      const std::int32_t share = spare / waiting;
      length += share;
      spare -= share;
      --waiting;
    }
    Place(item, cursor, row ? HXSize{length, given.height} : HXSize{given.width, length});
    (row ? cursor.x : cursor.y) += length;
  }
}

void HXLayout::Place(Item& item, HXPoint position, HXSize size) {
  if (item.kind == kWidget) {
    item.widget->SetPosition(position);
    if (item.widget != nullptr) item.widget->SetSize(size);
  } else if (item.kind == kLayout) {
    item.layout->SetOrigin(position);
    item.layout->Apply(size);
  }
}
