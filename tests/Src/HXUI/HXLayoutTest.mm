#include "Src/HXUI/HXLayout.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "Src/HXUI/HXObject.h"

namespace {

/// A widget without a native side that remembers where it was put, and how often.
class PlacedObject : public HXObject {
 public:
  explicit PlacedObject(HXSize initialSize) : HXObject(nullptr), size(initialSize) {}
  HXPoint GetPosition() const override { return position; }
  void SetPosition(HXPoint newPosition) override { position = newPosition; }
  HXSize GetSize() const override { return size; }
  void SetSize(HXSize newSize) override {
    size = newSize;
    ++placements;
  }
  HXRect GetRect() const { return {position.x, position.y, size.width, size.height}; }

  int placements = 0;

 private:
  HXPoint position;
  HXSize size;
};

TEST(HXLayoutTest, RowPlacesItemsSideBySideAtFullHeight) {
  PlacedObject first({20, 10});
  PlacedObject second({30, 99});
  HXLayout row(HXLayout::kRow);
  row.SetOrigin({5, 6});
  row.AddWidget(&first, false);
  row.AddGap(7);
  row.AddWidget(&second, false);
  row.Apply({200, 40});
  EXPECT_EQ(first.GetRect(), (HXRect{5, 6, 20, 40}));
  EXPECT_EQ(second.GetRect(), (HXRect{32, 6, 30, 40}));
}

TEST(HXLayoutTest, ColumnStacksItemsAtFullWidth) {
  PlacedObject first({20, 10});
  PlacedObject second({30, 12});
  HXLayout column(HXLayout::kColumn);
  column.SetOrigin({5, 6});
  column.AddWidget(&first, false);
  column.AddGap(7);
  column.AddWidget(&second, false);
  column.Apply({200, 40});
  EXPECT_EQ(first.GetRect(), (HXRect{5, 6, 200, 10}));
  EXPECT_EQ(second.GetRect(), (HXRect{5, 23, 200, 12}));
}

TEST(HXLayoutTest, EveryOrientationButZeroIsAColumn) {
  PlacedObject first({20, 10});
  PlacedObject second({20, 10});
  HXLayout column(static_cast<HXLayout::Orientation>(2));
  column.AddWidget(&first, false);
  column.AddWidget(&second, false);
  column.Apply({50, 50});
  EXPECT_EQ(second.GetRect(), (HXRect{0, 10, 50, 10}));
}

TEST(HXLayoutTest, SpareSpaceIsDividedWithTheRemainderLast) {
  struct Row {
    int spare;
    std::vector<int> shares;
  };
  const std::vector<Row> rows = {
      {10, {3, 3, 4}}, {11, {3, 4, 4}}, {12, {4, 4, 4}},     {1, {0, 0, 1}},
      {0, {0, 0, 0}},  {7, {7}},        {-10, {-3, -3, -4}}, {-1, {0, 0, -1}},
  };
  for (const Row& row : rows) {
    constexpr int kNatural = 20;
    std::vector<std::unique_ptr<PlacedObject>> objects;
    HXLayout layout(HXLayout::kRow);
    for (std::size_t i = 0; i < row.shares.size(); ++i) {
      objects.push_back(std::make_unique<PlacedObject>(HXSize{kNatural, 5}));
      layout.AddWidget(objects.back().get(), true);
    }
    const int natural = kNatural * static_cast<int>(row.shares.size());
    layout.Apply({natural + row.spare, 5});
    int x = 0;
    for (std::size_t i = 0; i < row.shares.size(); ++i) {
      EXPECT_EQ(objects[i]->GetRect(), (HXRect{x, 0, kNatural + row.shares[i], 5}))
          << "item " << i << " with spare space " << row.spare;
      x += kNatural + row.shares[i];
    }
  }
}

TEST(HXLayoutTest, SpacersAndWidgetsShareAlike) {
  PlacedObject fixed({10, 5});
  PlacedObject stretched({10, 5});
  HXLayout row(HXLayout::kRow);
  row.AddSpacer();
  row.AddWidget(&fixed, false);
  row.AddWidget(&stretched, true);
  row.AddSpacer();
  row.Apply({30, 5});
  EXPECT_EQ(fixed.GetRect(), (HXRect{3, 0, 10, 5}));
  EXPECT_EQ(stretched.GetRect(), (HXRect{13, 0, 13, 5}));
}

TEST(HXLayoutTest, WithoutStretchItemsSpareSpaceStaysAtTheEnd) {
  PlacedObject fixed({10, 5});
  HXLayout row(HXLayout::kRow);
  row.AddWidget(&fixed, false);
  row.Apply({100, 8});
  EXPECT_EQ(fixed.GetRect(), (HXRect{0, 0, 10, 8}));
  row.Apply({4, 8});
  EXPECT_EQ(fixed.GetRect(), (HXRect{0, 0, 10, 8})) << "too little space does not shrink it";
}

TEST(HXLayoutTest, MeasureAddsAlongAndTakesTheLargestAcross) {
  PlacedObject first({20, 10});
  PlacedObject second({30, 12});
  for (const auto orientation : {HXLayout::kRow, HXLayout::kColumn}) {
    HXLayout layout(orientation);
    layout.AddWidget(&first, false);
    layout.AddGap(5);
    layout.AddSpacer();
    layout.AddWidget(&second, true);
    const bool row = orientation == HXLayout::kRow;
    EXPECT_EQ(layout.Measure(), row ? (HXSize{55, 12}) : (HXSize{30, 27}));
  }
}

TEST(HXLayoutTest, EmptyLayoutMeasuresItsMinimumSize) {
  HXLayout layout(HXLayout::kRow);
  EXPECT_EQ(layout.Measure(), (HXSize{0, 0}));
  layout.SetMinSize({7, 8});
  EXPECT_EQ(layout.Measure(), (HXSize{7, 8}));
  layout.Apply({100, 100});
}

TEST(HXLayoutTest, MinimumSizeRaisesTheMeasurePerAxisAndTakesSpareSpace) {
  PlacedObject object({20, 10});
  HXLayout row(HXLayout::kRow);
  row.AddWidget(&object, true);
  row.SetMinSize({50, 5});
  EXPECT_EQ(row.Measure(), (HXSize{50, 10}));
  row.Apply({60, 30});
  EXPECT_EQ(object.GetRect(), (HXRect{0, 0, 30, 30}));
}

TEST(HXLayoutTest, NestedLayoutIsMeasuredAndPlacedLikeAWidget) {
  PlacedObject first({20, 10});
  PlacedObject second({30, 12});
  PlacedObject third({5, 5});
  auto column = std::make_unique<HXLayout>(HXLayout::kColumn);
  column->SetOrigin({900, 900});
  column->AddWidget(&first, false);
  column->AddSpacer();
  column->AddWidget(&second, false);
  HXLayout row(HXLayout::kRow);
  row.SetOrigin({1, 2});
  row.AddGap(4);
  row.AddLayout(std::move(column), true);
  row.AddWidget(&third, false);
  EXPECT_EQ(row.Measure(), (HXSize{39, 22}));
  row.Apply({100, 50});
  EXPECT_EQ(first.GetRect(), (HXRect{5, 2, 91, 10}));
  EXPECT_EQ(second.GetRect(), (HXRect{5, 40, 91, 12}));
  EXPECT_EQ(third.GetRect(), (HXRect{96, 2, 5, 50}));
}

TEST(HXLayoutTest, GapsOfAColumnCountInHeight) {
  PlacedObject object({5, 5});
  HXLayout column(HXLayout::kColumn);
  column.AddGap(11);
  column.AddGap(-3);
  column.AddWidget(&object, false);
  EXPECT_EQ(column.Measure(), (HXSize{5, 13}));
  column.Apply({9, 20});
  EXPECT_EQ(object.GetRect(), (HXRect{0, 8, 9, 5}));
}

TEST(HXLayoutTest, StretchedWidgetsGrowFromTheirPresentSize) {
  PlacedObject first({20, 10});
  PlacedObject second({40, 10});
  HXLayout row(HXLayout::kRow);
  row.AddWidget(&first, true);
  row.AddWidget(&second, true);
  row.Apply({100, 10});
  EXPECT_EQ(first.GetSize().width, 40);
  EXPECT_EQ(second.GetSize().width, 60);
  row.Apply({50, 10});
  EXPECT_EQ(first.GetSize().width, 15);
  EXPECT_EQ(second.GetSize().width, 35);
}

TEST(HXLayoutTest, RemovedWidgetIsNoLongerPlacedAnywhere) {
  PlacedObject gone({20, 10});
  PlacedObject stays({10, 10});
  auto nested = std::make_unique<HXLayout>(HXLayout::kRow);
  nested->AddWidget(&gone, true);
  HXLayout row(HXLayout::kRow);
  row.AddWidget(&gone, true);
  row.AddLayout(std::move(nested), false);
  row.AddWidget(&stays, true);
  row.RemoveWidget(&gone);
  EXPECT_EQ(row.Measure(), (HXSize{10, 10}));
  row.Apply({30, 10});
  EXPECT_EQ(gone.placements, 0);
  EXPECT_EQ(stays.GetRect(), (HXRect{0, 0, 30, 10}));
}

}  // namespace
