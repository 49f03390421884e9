#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

namespace {

// The application of these tests was made by it.

TEST(SharedApplicationTest, ThePlatformsPicturesForMenusAreThere) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  EXPECT_NE([NSImage imageNamed:@"NSMenuCheckmark"], nil);
  EXPECT_NE([NSImage imageNamed:@"NSMenuMixedState"], nil);
  [pool drain];
}

#ifdef GNUSTEP
TEST(SharedApplicationTest, FilesOfOtherFormatsCanBeReadAfterwards) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  // GNUstep itself knows nothing of this one.
  const char bytes[] = "P3\n2 1\n255\n255 0 0 0 0 255\n";
  NSData* data = [NSData dataWithBytes:bytes length:sizeof(bytes) - 1];
  NSImage* image = [[[NSImage alloc] initWithData:data] autorelease];
  EXPECT_EQ([image size].width, 2);
  EXPECT_EQ([image size].height, 1);
  [pool drain];
}
#endif

}  // namespace
