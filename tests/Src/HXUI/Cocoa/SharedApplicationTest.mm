#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>

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

/// How many of ImageMagick's decoders this program loads when it is started for one test.
int CountDecodersLoadedFor(const std::string& test) {
  const std::string program = std::filesystem::read_symlink("/proc/self/exe");
  const std::string command = "env LD_DEBUG=files '" + program + "' --gtest_filter='" + test +
                              "' 2>&1 | grep -c 'ImageMagick.*/coders/.*generating link map'";
  FILE* output = popen(command.c_str(), "r");
  int count = -1;
  EXPECT_EQ(std::fscanf(output, "%d", &count), 1);
  pclose(output);
  return count;
}

TEST(SharedApplicationTest, StartAndMenusLoadNoDecoders) {
  EXPECT_EQ(CountDecodersLoadedFor("SharedApplicationTest.ThePlatforms*"), 0);
  EXPECT_GT(CountDecodersLoadedFor("SharedApplicationTest.FilesOf*"), 0);
}
#endif

}  // namespace
