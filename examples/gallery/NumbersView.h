#pragma once

#include <array>

#include "Src/HXUI/HXControlFloatList.h"
#include "examples/gallery/GalleryView.h"

class FieldRow;
class HXControlFloat;

/// Numeric fields: every format and kind of range, and a row of fields that
/// keep their distance while they change their sizes.
class NumbersView : public GalleryView {
 public:
  NumbersView(HXObject* parent, EventLog& log);
  ~NumbersView() override;

  std::string Values() const override;

 private:
  void BuildFormats();
  void BuildRanges();
  void BuildRow();
  void OnBind(std::uint32_t eventCode);
  void OnEditNext(std::uint32_t eventCode);

  static constexpr std::size_t kFormatCount = 8;
  static constexpr std::size_t kRowCount = 3;

  std::array<float, kFormatCount> formatted{12.345F, 42, 30, 45, 50, 60, 0.25F, 0.5F};
  float fine = 50;
  float coarse = 500;
  float unbounded = 0;
  float growing = 1;
  float bindable = 7;
  std::array<float, kRowCount> row{1, 20, 300};
  bool isBound = true;
  HXControlFloat* bindableField = nullptr;
  FieldRow* fieldRow = nullptr;
  HXControlFloatList rowFields;
};
