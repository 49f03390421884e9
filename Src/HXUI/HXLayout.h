#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Src/HXUI/HXTypes.h"

class HXObject;

/// A box layout: places widgets, nested layouts, gaps and spacers side by side
/// in a row, or one below the other in a column. Not a widget; owned by the
/// widget it was given to with `HXObject::SetLayout`, or by the layout it is
/// nested in. The widgets in it stay owned by their parent widget; one that is
/// destroyed leaves its parent's layout by itself, even while it is being placed.
/// Main thread only; all lengths in pixels.
class HXLayout {
 public:
  enum Orientation : std::uint32_t { kRow = 0, kColumn = 1 };

  explicit HXLayout(Orientation layoutOrientation);
  ~HXLayout();
  HXLayout(const HXLayout&) = delete;
  HXLayout& operator=(const HXLayout&) = delete;

  /// `stretch`: the item takes a share of the space that is left over.
  void AddWidget(HXObject* widget, bool stretch);
  void AddLayout(std::unique_ptr<HXLayout> layout, bool stretch);
  /// A fixed length along the layout's axis.
  void AddGap(std::int32_t length);
  /// Length 0 that takes a share of the space that is left over.
  void AddSpacer();

  /// Takes `widget` out of this layout and the ones nested in it.
  void RemoveWidget(const HXObject* widget);

  /// Where the first item is placed, in the owner's coordinates.
  void SetOrigin(HXPoint position) { origin = position; }
  void SetMinSize(HXSize size) { minSize = size; }

  /// The natural size: lengths added along the axis, the largest across it,
  /// and at least the minimum size.
  HXSize Measure() const;

  /// Positions and sizes every item within `given`. The space left over is
  /// divided among the stretch items by integer division, the remainder going
  /// to the last ones; all items get the full size across the axis.
  void Apply(HXSize given);

 private:
  enum Kind : std::uint32_t { kWidget = 0, kLayout = 1, kGap = 2, kSpacer = 3 };
  struct Item {
    HXObject* widget = nullptr;
    std::unique_ptr<HXLayout> layout;
    std::int32_t gap = 0;
    bool stretch = false;
    Kind kind = kSpacer;
  };

  HXSize NaturalSize(const Item& item) const;
  void Place(Item& item, HXPoint position, HXSize size);

  Orientation orientation;
  HXPoint origin;
  HXSize minSize;
  std::vector<Item> items;
};
