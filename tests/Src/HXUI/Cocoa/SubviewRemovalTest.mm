#include "Src/HXUI/Cocoa/SubviewRemoval.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <vector>

/// Writes down which subviews leave it, and whether they were still in its list.
@interface LeftView : NSView {
 @public
  std::vector<NSView*> left;
  bool listed;
}
@end

@implementation LeftView
- (void)willRemoveSubview:(NSView*)subview {
  left.push_back(subview);
  listed = listed && [[self subviews] containsObject:subview];
}
@end

namespace {

class SubviewRemovalTest : public ::testing::Test {
 protected:
  SubviewRemovalTest() : pool([[NSAutoreleasePool alloc] init]) {}
  ~SubviewRemovalTest() override { [pool drain]; }

  static NSView* NewView() {
    return [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
  }

 private:
  NSAutoreleasePool* pool;
};

TEST_F(SubviewRemovalTest, AllLeaveFromTheFirstToTheLast) {
  LeftView* view = [[[LeftView alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease];
  view->listed = true;
  std::vector<NSView*> subviews;
  for (int i = 0; i < 5; ++i) {
    subviews.push_back(NewView());
    [view addSubview:subviews.back()];
  }
  RemoveSubviews(view);
  EXPECT_EQ(view->left, subviews);
  EXPECT_TRUE(view->listed) << "each is still there when the platform says that it is going";
  EXPECT_EQ([[view subviews] count], 0U);
  for (NSView* subview : subviews) {
    EXPECT_EQ([subview superview], nil);
    EXPECT_EQ([subview nextResponder], nil);
  }
}

TEST_F(SubviewRemovalTest, TheViewTakesNewSubviewsAfterwards) {
  NSView* view = NewView();
  RemoveSubviews(view);
  [view addSubview:NewView()];
  RemoveSubviews(view);
  NSView* last = NewView();
  [view addSubview:last];
  EXPECT_EQ([[view subviews] count], 1U);
  EXPECT_EQ([last superview], view);
}

TEST_F(SubviewRemovalTest, NothingKeepsASubviewAlive) {
  NSView* view = NewView();
  NSView* subview = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)];
  const NSUInteger before = [subview retainCount];
  {
    NSAutoreleasePool* inner = [[NSAutoreleasePool alloc] init];
    [view addSubview:subview];
    RemoveSubviews(view);
    [inner drain];
  }
  EXPECT_EQ([subview retainCount], before);
  [subview release];
}

}  // namespace
