#include "Src/HXUI/HXObjectGuard.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

TEST(HXObjectGuardTest, KnowsWhetherItsObjectLives) {
  auto object = std::make_unique<RecordingOwner>();
  const HXObjectGuard guard(object.get());
  EXPECT_TRUE(guard.IsAlive());
  EXPECT_EQ(guard.Get(), object.get());
  object.reset();
  EXPECT_FALSE(guard.IsAlive());
  EXPECT_EQ(guard.Get(), nullptr);
}

TEST(HXObjectGuardTest, NullIsNotAlive) {
  const HXObjectGuard guard(nullptr);
  EXPECT_FALSE(guard.IsAlive());
}

TEST(HXObjectGuardTest, NestedGuardsAllHearOfTheirOwnObjectOnly) {
  auto object = std::make_unique<RecordingOwner>();
  RecordingOwner other;
  const HXObjectGuard outer(object.get());
  const HXObjectGuard middle(&other);
  {
    const HXObjectGuard inner(object.get());
    object.reset();
    EXPECT_FALSE(inner.IsAlive());
  }
  EXPECT_FALSE(outer.IsAlive());
  EXPECT_TRUE(middle.IsAlive());
}

TEST(HXObjectGuardTest, GuardThatHasEndedIsNotTouched) {
  auto object = std::make_unique<RecordingOwner>();
  { const HXObjectGuard guard(object.get()); }
  object.reset();
  RecordingOwner next;
  const HXObjectGuard guard(&next);
  EXPECT_TRUE(guard.IsAlive());
}

}  // namespace
