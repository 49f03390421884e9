#include "Src/HXUI/HXControl.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>
#include <utility>
#include <vector>

#include "Src/HXUI/HXPanelControl.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

class TestControl : public HXPanelControl {
 public:
  using HXPanelControl::HXPanelControl;
  using HXPanelControl::NotifyOwner;
};

using Call = std::tuple<HXObject*, std::uint32_t, HXControl*, int>;
std::vector<Call>& Calls() {
  static std::vector<Call> calls;
  return calls;
}
void Record(HXObject* target, std::uint32_t commandId, HXControl* sender, int notification) {
  Calls().emplace_back(target, commandId, sender, notification);
}
void DeleteSender(HXObject*, std::uint32_t, HXControl* sender, int) { delete sender; }

class HXControlTest : public ToolkitFixture {
 protected:
  HXControlTest() { Calls().clear(); }
  TestControl* control = new TestControl(window.get(), {0, 0}, {10, 10});
  RecordingOwner owner;
};

TEST_F(HXControlTest, WithoutAHandlerNothingHappens) {
  EXPECT_TRUE(control->NotifyOwner(kChangeDone));
  control->SetChangeHandler(Record, &owner, 5);
  control->SetChangeHandler(nullptr, &owner, 5);
  EXPECT_TRUE(control->NotifyOwner(kChangeDone));
  EXPECT_TRUE(Calls().empty());
}

TEST_F(HXControlTest, HandlerGetsTargetIdSenderAndNotification) {
  control->SetChangeHandler(Record, &owner, 0xFFFFFFFFU);
  EXPECT_TRUE(control->NotifyOwner(kChangeBegins));
  EXPECT_TRUE(control->NotifyOwner(kChangeStep));
  EXPECT_TRUE(control->NotifyOwner(kChangeDone));
  const std::vector<Call> expected = {{&owner, 0xFFFFFFFFU, control, 0},
                                      {&owner, 0xFFFFFFFFU, control, 1},
                                      {&owner, 0xFFFFFFFFU, control, 2}};
  EXPECT_EQ(Calls(), expected);
}

TEST_F(HXControlTest, NullTargetIsPassedOn) {
  control->SetChangeHandler(Record, nullptr, 0);
  control->NotifyOwner(kChangeDone);
  EXPECT_EQ(Calls(), (std::vector<Call>{{nullptr, 0, control, 2}}));
}

TEST_F(HXControlTest, HandlerMayDeleteTheControl) {
  control->SetChangeHandler(DeleteSender, &owner, 1);
  EXPECT_FALSE(control->NotifyOwner(kChangeBegins));
  EXPECT_TRUE(window->GetChildren().empty());
}

}  // namespace
