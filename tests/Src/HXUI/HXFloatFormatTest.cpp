#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Src/HXUI/HXFloatFormat.h"
#include "tests/support/CommaLocale.h"

namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();

struct Row {
  int code;
  float value;
  const char* shown;
  const char* number;
  const char* editor;
};

TEST(HXFloatFormatTest, WritesEachFormat) {
  const Row rows[] = {
      {0, 12.345F, "12.3", "12.3", "12.3"},      {1, 12.945F, "12", "12", "12"},
      {2, 12.345F, "12.3º", "12.3", "12.3"},     {3, 12.345F, "12.3º", "12.3", "12.3"},
      {4, 12.345F, "12.3%", "12.3", "12.3"},     {5, 12.345F, "12.3º", "12.3", "12.3"},
      {6, 12.3456F, "12.35", "12.35", "12.346"}, {7, 0.12345F, "12.3%", "12.3", "12.3"},
      {8, 12.345F, "12.3", "12.3", "12.3"},      {-1, 12.345F, "12.3", "12.3", "12.3"},
      {1, -12.945F, "-12", "-12", "-12"},        {1, 0.999F, "0", "0", "0"},
      {6, -0.0005F, "-0.00", "-0.00", "-0.001"}, {7, -0.5F, "-50.0%", "-50.0", "-50.0"},
  };
  for (const Row& row : rows) {
    const HXFloatFormat format(row.code);
    EXPECT_EQ(format.ShownText(row.value), row.shown) << row.code;
    EXPECT_EQ(format.NumberText(row.value), row.number) << row.code;
    EXPECT_EQ(format.EditorText(row.value), row.editor) << row.code;
  }
}

TEST(HXFloatFormatTest, NegativeZeroShowsAsZero) {
  for (const float value : {-0.0F, -1.0e-9F, -1.1920929e-7F}) {
    EXPECT_EQ(HXFloatFormat(0).ShownText(value), "0.0");
    EXPECT_EQ(HXFloatFormat(1).ShownText(value), "0");
    EXPECT_EQ(HXFloatFormat(6).ShownText(value), "0.00");
    EXPECT_EQ(HXFloatFormat(6).EditorText(value), "0.000");
    EXPECT_EQ(HXFloatFormat(7).ShownText(value), "0.0%");
  }
}

TEST(HXFloatFormatTest, NegativeNumbersBeyondTheBoundKeepTheirSign) {
  EXPECT_EQ(HXFloatFormat(0).ShownText(std::nextafter(-1.1920929e-7F, -1.0F)), "-0.0");
  EXPECT_EQ(HXFloatFormat(0).ShownText(-0.04F), "-0.0");
}

TEST(HXFloatFormatTest, ShowsWhatIsNoNumber) {
  EXPECT_EQ(HXFloatFormat(0).ShownText(kNoNumber), "nan");
  EXPECT_EQ(HXFloatFormat(0).ShownText(kInfinity), "inf");
  EXPECT_EQ(HXFloatFormat(7).ShownText(-kInfinity), "-inf%");
  EXPECT_EQ(HXFloatFormat(1).ShownText(kNoNumber), "0");
}

TEST(HXFloatFormatTest, IntegersStopAtThirtyTwoBits) {
  EXPECT_EQ(HXFloatFormat(1).ShownText(kInfinity), "2147483647");
  EXPECT_EQ(HXFloatFormat(1).ShownText(3.0e9F), "2147483647");
  EXPECT_EQ(HXFloatFormat(1).ShownText(-kInfinity), "-2147483648");
  EXPECT_EQ(HXFloatFormat(1).ShownText(-2147483648.0F), "-2147483648");
  EXPECT_EQ(HXFloatFormat(1).ShownText(16777216.0F), "16777216");
}

TEST(HXFloatFormatTest, TheLargestNumberIsWrittenOut) {
  constexpr float kLargest = std::numeric_limits<float>::max();
  EXPECT_EQ(HXFloatFormat(0).ShownText(kLargest), "340282346638528859811704183484516925440.0");
  // A hundred times as much is no float any more.
  EXPECT_EQ(HXFloatFormat(7).ShownText(kLargest), "inf%");
}

TEST(HXFloatFormatTest, ReadsTheNumberThatTheTextBeginsWith) {
  const HXFloatFormat format(0);
  EXPECT_EQ(format.Parse("1.5"), 1.5F);
  EXPECT_EQ(format.Parse("-12"), -12.0F);
  EXPECT_EQ(format.Parse("+3"), 3.0F);
  EXPECT_EQ(format.Parse("  7"), 7.0F);
  EXPECT_EQ(format.Parse("12abc"), 12.0F);
  EXPECT_EQ(format.Parse("45º"), 45.0F);
  EXPECT_EQ(format.Parse("1e3"), 1000.0F);
  EXPECT_EQ(format.Parse("0x10"), 16.0F);
  EXPECT_EQ(format.Parse("inf"), kInfinity);
  EXPECT_TRUE(std::isnan(format.Parse("nan").value()));
}

TEST(HXFloatFormatTest, ACommaIsADecimalPoint) {
  const HXFloatFormat format(0);
  EXPECT_EQ(format.Parse("1,5"), 1.5F);
  EXPECT_EQ(format.Parse(",25"), 0.25F);
  // Each of them: this is 1.000.5, of which 1.000 is a number.
  EXPECT_EQ(format.Parse("1,000,5"), 1.0F);
}

TEST(HXFloatFormatTest, ReadsNothingWithoutANumberAtTheBeginning) {
  const HXFloatFormat format(0);
  for (const char* text : {"", " ", "abc", ".", ",", "-", "x1"}) {
    EXPECT_EQ(format.Parse(text), std::nullopt) << text;
  }
}

TEST(HXFloatFormatTest, ReadsNothingBeyondTheRangeOfDoubles) {
  for (const int code : {0, 1, 7}) {
    const HXFloatFormat format(code);
    EXPECT_EQ(format.Parse("1e400"), std::nullopt);
    EXPECT_EQ(format.Parse("-1e400"), std::nullopt);
    EXPECT_EQ(format.Parse("1e-400"), std::nullopt);
  }
}

TEST(HXFloatFormatTest, WhatIsBeyondFloatsOnlyBecomesInfinite) {
  EXPECT_EQ(HXFloatFormat(0).Parse("1e39"), kInfinity);
  EXPECT_EQ(HXFloatFormat(0).Parse("-1e39"), -kInfinity);
  EXPECT_EQ(HXFloatFormat(0).Parse("1e38"), 1e38F);
}

TEST(HXFloatFormatTest, OnlyFractionsAreReadAsPercentages) {
  EXPECT_EQ(HXFloatFormat(7).Parse("50"), 0.5F);
  EXPECT_EQ(HXFloatFormat(7).Parse("12,5"), 0.125F);
  EXPECT_EQ(HXFloatFormat(4).Parse("50"), 50.0F);
}

TEST(HXFloatFormatTest, KnowsIntegersAndAngles) {
  for (int code = 0; code <= 8; ++code) {
    EXPECT_EQ(HXFloatFormat(code).IsInteger(), code == 1);
    EXPECT_EQ(HXFloatFormat(code).IsAngle(), code == 2);
  }
}

TEST(HXFloatFormatTest, WritesAndReadsTheSameForAUserWithADecimalComma) {
  const CommaLocale locale;
  EXPECT_EQ(HXFloatFormat(0).ShownText(12345.67F), "12345.7");
  EXPECT_EQ(HXFloatFormat(HXFloatFormat::kInteger).ShownText(12345.67F), "12345");
  EXPECT_EQ(HXFloatFormat(HXFloatFormat::kDegrees).ShownText(12.5F), "12.5º");
  EXPECT_EQ(HXFloatFormat(HXFloatFormat::kTwoDecimals).EditorText(0.125F), "0.125");
  EXPECT_EQ(HXFloatFormat(HXFloatFormat::kFraction).EditorText(0.125F), "12.5");
  for (const char* text : {"1.5", "1,5", "1.5 and more"}) {
    EXPECT_EQ(HXFloatFormat(0).Parse(text), 1.5F) << text;
  }
}

}  // namespace
