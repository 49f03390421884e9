#include "Src/HXUI/HXEventSinks.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "tests/Src/HXUI/RecordingSink.h"

namespace {

TEST(HXEventSinksTest, LastSinkAddedSeesTheEventFirst) {
  std::string order;
  RecordingSink first;
  RecordingSink second;
  first.onEvent = [&] { order += '1'; };
  second.onEvent = [&] { order += '2'; };
  EXPECT_TRUE(HXEventSinks::Send(nullptr, kWheel, 1));
  EXPECT_EQ(order, "21");
}

TEST(HXEventSinksTest, RecordCarriesTheEvent) {
  static_assert(std::is_standard_layout_v<HXEventSinkRecord>);
  EXPECT_LT(offsetof(HXEventSinkRecord, source), offsetof(HXEventSinkRecord, kind));
  EXPECT_LT(offsetof(HXEventSinkRecord, kind), offsetof(HXEventSinkRecord, parameter));
  EXPECT_LT(offsetof(HXEventSinkRecord, parameter), offsetof(HXEventSinkRecord, pass));
  RecordingOwner source;
  RecordingSink sink;
  HXEventSinks::Send(&source, kKeyUp, -(std::int64_t{1} << 40));
  ASSERT_EQ(sink.records.size(), 1U);
  EXPECT_EQ(sink.records[0].source, &source);
  EXPECT_EQ(sink.records[0].kind, 15U);
  EXPECT_EQ(sink.records[0].parameter, -(std::int64_t{1} << 40));
  EXPECT_EQ(sink.records[0].pass, 1);
}

TEST(HXEventSinksTest, StoppingEndsTheWalk) {
  RecordingSink first;
  RecordingSink second;
  second.stop = true;
  EXPECT_FALSE(HXEventSinks::Send(nullptr, kWheel, 1));
  EXPECT_TRUE(first.records.empty());
  second.stop = false;
  first.stop = true;
  EXPECT_FALSE(HXEventSinks::Send(nullptr, kWheel, 1));
  EXPECT_EQ(second.records.size(), 2U);
}

TEST(HXEventSinksTest, DisabledSinkIsLeftOut) {
  RecordingSink sink;
  sink.stop = true;
  sink.SetEnabled(false);
  EXPECT_TRUE(HXEventSinks::Send(nullptr, kWheel, 1));
  EXPECT_TRUE(sink.records.empty());
  sink.SetEnabled(true);
  EXPECT_FALSE(HXEventSinks::Send(nullptr, kWheel, 1));
}

TEST(HXEventSinksTest, DestroyedSinkLeavesAndTheOthersKeepTheirOrder) {
  std::string order;
  RecordingSink first;
  auto middle = std::make_unique<RecordingSink>();
  RecordingSink last;
  first.onEvent = [&] { order += '1'; };
  last.onEvent = [&] { order += '3'; };
  middle.reset();
  HXEventSinks::Send(nullptr, kWheel, 1);
  EXPECT_EQ(order, "31");
}

TEST(HXEventSinksTest, SinkAddedTwiceIsAskedTwiceAndLeavesAltogether) {
  auto sink = std::make_unique<RecordingSink>();
  HXObject::AddEventSink(sink.get());
  HXEventSinks::Send(nullptr, kWheel, 1);
  EXPECT_EQ(sink->records.size(), 2U);
  sink.reset();
  EXPECT_TRUE(HXEventSinks::Send(nullptr, kWheel, 1));
}

TEST(HXEventSinksTest, SinkMayDestroyItself) {
  RecordingSink first;
  auto* last = new RecordingSink;
  last->onEvent = [last] { delete last; };
  HXEventSinks::Send(nullptr, kWheel, 1);
  EXPECT_EQ(first.records.size(), 1U);
}

TEST(HXEventSinksTest, SinkMayDestroyOnesBeforeAndAfterIt) {
  auto earliest = std::make_unique<RecordingSink>();
  RecordingSink early;
  RecordingSink acting;
  auto latest = std::make_unique<RecordingSink>();
  acting.onEvent = [&] {
    earliest.reset();
    latest.reset();
  };
  HXEventSinks::Send(nullptr, kWheel, 1);
  EXPECT_EQ(acting.records.size(), 1U) << "nobody sees an event twice";
  EXPECT_EQ(early.records.size(), 1U);
}

TEST(HXEventSinksTest, SinkAddedDuringAnEventWaitsForTheNextOne) {
  RecordingSink acting;
  std::unique_ptr<RecordingSink> added;
  acting.onEvent = [&] {
    if (added == nullptr) added = std::make_unique<RecordingSink>();
  };
  HXEventSinks::Send(nullptr, kWheel, 1);
  EXPECT_TRUE(added->records.empty());
  HXEventSinks::Send(nullptr, kWheel, 1);
  EXPECT_EQ(added->records.size(), 1U);
}

TEST(HXEventSinksTest, SourceThatASinkDestroyedIsNullForTheNextSink) {
  auto source = std::make_unique<RecordingOwner>();
  RecordingSink first;
  RecordingSink last;
  last.onEvent = [&] { source.reset(); };
  HXEventSinks::Send(source.get(), kWheel, 1);
  ASSERT_EQ(first.records.size(), 1U);
  EXPECT_EQ(first.records[0].source, nullptr);
}

}  // namespace
