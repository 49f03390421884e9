#include "Src/HXUI/Cocoa/Workspace.h"

#include <objc/runtime.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

std::vector<std::string> requests;

BOOL RecordSelection(id, SEL, NSString* path, NSString* root) {
  requests.push_back("select " + FromNative(path) + " in <" + FromNative(root) + ">");
  return YES;
}

BOOL RecordURL(id, SEL, NSURL* url) {
  requests.push_back("open " + FromNative([url absoluteString]));
  return YES;
}

NSString* browser = nil;

NSString* BestApplication(id, SEL, NSString*, NSString* scheme) {
  return [scheme isEqualToString:@"https"] ? browser : nil;
}

/// The desktop's file viewer and browser are other programs: what they are
/// asked for is recorded in their place.
class WorkspaceTest : public ToolkitFixture {
 protected:
  WorkspaceTest()
      : selection(Replace(@selector(selectFile:inFileViewerRootedAtPath:),
                          reinterpret_cast<IMP>(RecordSelection))),
        opening(Replace(@selector(openURL:), reinterpret_cast<IMP>(RecordURL))),
        best(Replace(@selector(getBestAppInRole:forScheme:),
                     reinterpret_cast<IMP>(BestApplication))) {
    requests.clear();
    browser = @"Browser";
  }
  ~WorkspaceTest() override {
    Replace(@selector(selectFile:inFileViewerRootedAtPath:), selection);
    Replace(@selector(openURL:), opening);
    Replace(@selector(getBestAppInRole:forScheme:), best);
  }

 private:
  static IMP Replace(SEL selector, IMP implementation) {
    return method_setImplementation(class_getInstanceMethod([NSWorkspace class], selector),
                                    implementation);
  }

  IMP selection;
  IMP opening;
  IMP best;
};

TEST_F(WorkspaceTest, TheFileViewerIsAskedToSelectThePathWithoutARoot) {
  RevealInFileViewer("/tmp/größer/a file");
  EXPECT_EQ(requests, std::vector<std::string>{"select /tmp/größer/a file in <>"});
}

TEST_F(WorkspaceTest, AURLIsOpenedAsItIs) {
  OpenURL("https://example.com/help?page=1#top");
  EXPECT_EQ(requests, std::vector<std::string>{"open https://example.com/help?page=1#top"});
}

TEST_F(WorkspaceTest, AURLThatNobodyIsInChargeOfIsLeftUndone) {
  browser = nil;
  OpenURL("https://example.com");
  OpenURL("strange:thing");
  OpenURL("no scheme at all");
  EXPECT_TRUE(requests.empty());
}

TEST_F(WorkspaceTest, AFileURLNeedsNobodyInChargeOfItsScheme) {
  OpenURL("file:///tmp/a.txt");
  ASSERT_EQ(requests.size(), 1U);
  EXPECT_EQ(requests[0].rfind("open file:", 0), 0U) << requests[0];
}

TEST_F(WorkspaceTest, WhatIsNoTextIsLeftUndone) {
  RevealInFileViewer("/tmp/\xFF");
  OpenURL("https://example.com/\xFF");
  EXPECT_TRUE(requests.empty());
}

TEST_F(WorkspaceTest, WhatIsNoURLIsLeftUndone) {
  OpenURL("http://[");
  EXPECT_TRUE(requests.empty());
}

}  // namespace
