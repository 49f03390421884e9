#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <string>
#include <thread>
#include <vector>

#include "support/Clock.h"
#include "support/Profiler.h"
#include "tests/support/AllocatedBytes.h"

namespace {

/// Every test finds and leaves the process's one profiler empty. Leaving it so writes to the
/// entries, so they belong to the fixture and not to the test's body.
class ProfilerTest : public testing::Test {
 protected:
  void SetUp() override { profiler.Reset(); }
  void TearDown() override { profiler.Reset(); }

  std::string Printed() const {
    testing::internal::CaptureStdout();
    profiler.Print();
    return testing::internal::GetCapturedStdout();
  }

  ProfilerEntry& Named(const std::string& name) {
    entries.emplace_back().name = name;
    return entries.back();
  }

  Profiler& profiler = Profiler::Instance();
  std::deque<ProfilerEntry> entries;
};

void WaitForClock(double ms) {
  const double start = GetTimeMs();
  while (GetTimeMs() - start < ms) std::this_thread::yield();
}

}  // namespace

TEST_F(ProfilerTest, ACopyOfAKnownEntryIsAnotherEntry) {
  ProfilerEntry& first = Named("first");
  profiler.Begin(&first);
  profiler.End();
  ProfilerEntry& copy = entries.emplace_back(first);
  copy.name = "copy";
  copy.total = 0;
  profiler.Begin(&copy);
  profiler.End();
  profiler.Begin(&first);
  profiler.End();
  const std::string printed = Printed();
  EXPECT_LT(printed.find("first"), printed.find("copy"));
  EXPECT_NE(printed.find("copy"), std::string::npos);
  EXPECT_EQ(printed.find("first"), printed.rfind("first"));
}

TEST_F(ProfilerTest, ThereIsOneProfilerForAllThreads) {
  std::vector<Profiler*> seen(8, nullptr);
  std::vector<std::thread> threads;
  for (Profiler*& slot : seen) threads.emplace_back([&slot] { slot = &Profiler::Instance(); });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(seen, std::vector<Profiler*>(8, &profiler));
}

TEST_F(ProfilerTest, EndWithoutBeginIsZeroAndChangesNothing) {
  EXPECT_EQ(profiler.End(), 0.0);
  ProfilerEntry& entry = Named("entry");
  profiler.Begin(&entry);
  profiler.End();
  const double total = entry.total;
  EXPECT_EQ(profiler.End(), 0.0);
  EXPECT_EQ(entry.total, total);
}

TEST_F(ProfilerTest, BeginTakesTheTimeOfDay) {
  ProfilerEntry& entry = Named("entry");
  const double before = GetTimeMs();
  profiler.Begin(&entry);
  EXPECT_LE(before, entry.start);
  EXPECT_LE(entry.start, GetTimeMs());
  EXPECT_EQ(entry.total, 0.0);
}

TEST_F(ProfilerTest, EndReturnsTheNewTotalInMilliseconds) {
  ProfilerEntry& entry = Named("entry");
  entry.total = 1000.0;
  profiler.Begin(&entry);
  WaitForClock(5.0);
  const double total = profiler.End();
  EXPECT_EQ(total, entry.total);
  EXPECT_GE(total, 1005.0);
  EXPECT_LE(total, 1000.0 + GetTimeMs() - entry.start);
}

TEST_F(ProfilerTest, NestedIntervalsEndInnermostFirst) {
  ProfilerEntry& outer = Named("outer");
  ProfilerEntry& inner = Named("inner");
  profiler.Begin(&outer);
  WaitForClock(1.0);
  profiler.Begin(&inner);
  WaitForClock(1.0);
  EXPECT_EQ(profiler.End(), inner.total);
  EXPECT_EQ(outer.total, 0.0);
  EXPECT_EQ(profiler.End(), outer.total);
  EXPECT_GE(inner.total, 1.0);
  EXPECT_GE(outer.total, inner.total + 1.0);
}

TEST_F(ProfilerTest, EntryBegunTwiceIsPrintedOnceWithTheSum) {
  ProfilerEntry& entry = Named("twice");
  profiler.Begin(&entry);
  WaitForClock(1.0);
  const double first = profiler.End();
  profiler.Begin(&entry);
  WaitForClock(1.0);
  EXPECT_GE(profiler.End(), first + 1.0);
  entry.total = 12.5;
  EXPECT_EQ(Printed(), "# Profiler:\ntwice - 12.50ms\n");
}

TEST_F(ProfilerTest, EntryBegunAgainBeforeItsEndNeedsTwoEnds) {
  ProfilerEntry& entry = Named("nested in itself");
  profiler.Begin(&entry);
  const double firstStart = entry.start;
  WaitForClock(1.0);
  profiler.Begin(&entry);
  EXPECT_GE(entry.start, firstStart + 1.0);
  const double first = profiler.End();
  EXPECT_GE(profiler.End(), first);
  EXPECT_EQ(profiler.End(), 0.0);
  entry.total = 0.0;
  EXPECT_EQ(Printed(), "# Profiler:\nnested in itself - 0.00ms\n");
}

TEST_F(ProfilerTest, PrintsInOrderOfFirstUse) {
  ProfilerEntry& a = Named("a");
  ProfilerEntry& b = Named("b 100%s");
  ProfilerEntry& sameName = Named("a");
  for (ProfilerEntry* entry : {&b, &a, &sameName, &b}) {
    profiler.Begin(entry);
    profiler.End();
  }
  a.total = 1.005;
  b.total = 1234567.891;
  sameName.total = 0.0;
  EXPECT_EQ(Printed(), "# Profiler:\nb 100%s - 1234567.89ms\na - 1.00ms\na - 0.00ms\n");
}

TEST_F(ProfilerTest, PrintsEntriesThatAreStillUnderWay) {
  ProfilerEntry& entry = Named("open");
  profiler.Begin(&entry);
  EXPECT_EQ(Printed(), "# Profiler:\nopen - 0.00ms\n");
}

TEST_F(ProfilerTest, PrintsTheHeadingAlone) { EXPECT_EQ(Printed(), "# Profiler:\n"); }

TEST_F(ProfilerTest, ResetClearsTotalsAndForgetsEverything) {
  ProfilerEntry& done = Named("done");
  ProfilerEntry& open = Named("open");
  profiler.Begin(&done);
  profiler.End();
  profiler.Begin(&open);
  done.total = 5.0;
  open.total = 7.0;
  profiler.Reset();
  EXPECT_EQ(done.total, 0.0);
  EXPECT_EQ(open.total, 0.0);
  EXPECT_EQ(profiler.End(), 0.0);
  EXPECT_EQ(Printed(), "# Profiler:\n");
}

TEST_F(ProfilerTest, EntryIsKnownAgainAfterReset) {
  ProfilerEntry& entry = Named("again");
  profiler.Begin(&entry);
  profiler.Reset();
  profiler.Begin(&entry);
  entry.total = 0.0;
  EXPECT_EQ(Printed(), "# Profiler:\nagain - 0.00ms\n");
}

TEST_F(ProfilerTest, ManyEntriesKeepTheirOrder) {
  constexpr int kCount = 3000;
  std::string expected = "# Profiler:\n";
  for (int i = 0; i < kCount; ++i) {
    profiler.Begin(&Named(std::to_string(i)));
    expected += entries.back().name + " - 0.00ms\n";
  }
  EXPECT_EQ(Printed(), expected);
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
    EXPECT_EQ(profiler.End(), entry->total);
  }
  EXPECT_EQ(profiler.End(), 0.0);
}

TEST_F(ProfilerTest, EveryOrderOfUseKeepsEachEntryOnce) {
  constexpr std::size_t kCount = 150;
  std::string expected = "# Profiler:\n";
  for (std::size_t i = 0; i < kCount; ++i) {
    profiler.Begin(&Named(std::to_string(i)));
    profiler.End();
    expected += std::to_string(i) + " - 0.00ms\n";
  }
  // None of the steps shares a divisor with the count, so each visits all entries.
  for (const std::size_t step : {std::size_t{1}, std::size_t{7}, kCount / 2 + 2, kCount - 1}) {
    for (std::size_t i = 0; i < kCount; ++i) {
      profiler.Begin(&entries[i * step % kCount]);
      profiler.End();
    }
  }
  for (ProfilerEntry& entry : entries) entry.total = 0.0;
  EXPECT_EQ(Printed(), expected);
}

TEST_F(ProfilerTest, EndingGivesTheStacksMemoryBack) {
  constexpr int kDepth = 1'000'000;
  ProfilerEntry& entry = Named("deep");
  const std::uint64_t before = AllocatedBytes();
  for (int i = 0; i < kDepth; ++i) profiler.Begin(&entry);
  const std::uint64_t peak = AllocatedBytes();
  for (int i = 0; i < kDepth; ++i) profiler.End();
  EXPECT_GE(peak, before + kDepth * sizeof(void*));
  EXPECT_LE(AllocatedBytes(), before + (peak - before) / 16);
}

TEST_F(ProfilerTest, LabelCarriesThePlaceInTheSource) {
  EXPECT_EQ(Profiler::MakeLabel("load", "Src/Loader.cpp", 42), "load (Src/Loader.cpp:42)");
  EXPECT_EQ(Profiler::MakeLabel("", "", -1), " (:-1)");
}
