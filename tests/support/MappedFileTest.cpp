#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <limits>

#include "support/Files.h"
#include "support/MappedFile.h"
#include "tests/support/Descriptors.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

const std::uint64_t kPage = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
constexpr std::uint64_t kHuge = std::numeric_limits<std::uint64_t>::max();

/// A byte pattern that tells places in different pages apart.
std::string Pattern(std::uint64_t size) {
  std::string pattern(size, '\0');
  for (std::uint64_t i = 0; i < size; ++i) pattern[i] = static_cast<char>(i * 7 + i / kPage);
  return pattern;
}

void ExpectClosed(const MappedFile& file) {
  EXPECT_EQ(file.fd, -1);
  EXPECT_EQ(file.mapping, nullptr);
  EXPECT_EQ(file.length, 0U);
}

/// There is memory at `page`, the start of a page.
bool IsMapped(void* page) { return page && msync(page, kPage, MS_ASYNC) == 0; }

}  // namespace

TEST(MappedFileTest, ReadsTheWholeFile) {
  const TemporaryFolder folder;
  const std::string content = Pattern(3 * kPage + 17);
  const MappedFile file(folder.AddFile("file", content), 0, 0, false);
  ASSERT_NE(file.mapping, nullptr);
  EXPECT_TRUE(file.isOpen);
  EXPECT_EQ(file.writable, 0);
  EXPECT_NE(file.fd, -1);
  EXPECT_EQ(file.length, content.size());
  EXPECT_EQ(file.mappedSize, content.size());
  EXPECT_EQ(std::memcmp(file.mapping, content.data(), content.size()), 0);
}

TEST(MappedFileTest, ReadsOnlyTheRequestedLength) {
  const TemporaryFolder folder;
  const MappedFile file(folder.AddFile("file", "abcdef"), 0, 3, false);
  ASSERT_NE(file.mapping, nullptr);
  EXPECT_EQ(file.length, 3U);
  EXPECT_EQ(file.mappedSize, 3U);
  EXPECT_EQ(std::memcmp(file.mapping, "abc", 3), 0);
}

TEST(MappedFileTest, ReadingLeavesTheFileAlone) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abcdef");
  ASSERT_EQ(chmod(path.c_str(), 0640), 0);
  {
    const MappedFile file(path, 0, 10 * kPage, false);
    ASSERT_NE(file.mapping, nullptr);
    EXPECT_EQ(file.length, 10 * kPage);
    EXPECT_EQ(std::memcmp(file.mapping, "abcdef", 6), 0);
  }
  EXPECT_EQ(ReadWholeFile(path), "abcdef");
  EXPECT_EQ(ModeOf(path), 0640U);
}

TEST(MappedFileTest, MissingFileStaysClosedWhenReading) {
  const TemporaryFolder folder;
  MappedFile file(folder.Path("missing"), 0, 100, false);
  ExpectClosed(file);
  EXPECT_FALSE(file.isOpen);
  EXPECT_EQ(file.Map(0, 10), 0U);
  ExpectClosed(file);
  EXPECT_FALSE(FileExists(folder.Path("missing")));
}

TEST(MappedFileTest, MissingFolderStaysClosedWhenWriting) {
  const TemporaryFolder folder;
  const MappedFile file(folder.Path("missing/file"), 1, 100, false);
  ExpectClosed(file);
  EXPECT_FALSE(file.isOpen);
  EXPECT_EQ(file.writable, 1);
}

TEST(MappedFileTest, UnreadableFileStaysClosed) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("secret", "abc");
  ASSERT_EQ(chmod(folder.path.c_str(), 0755), 0);
  ASSERT_EQ(chmod(path.c_str(), 0), 0);
  EXPECT_TRUE(AskAsOrdinaryUser([&] {
    const MappedFile file(path, 0, 0, false);
    return file.fd == -1 && !file.mapping && !file.isOpen;
  }));
}

TEST(MappedFileTest, FileOfAnotherOwnerKeepsItsModeAndIsWritten) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("shared", "abc");
  ASSERT_EQ(chmod(folder.path.c_str(), 0755), 0);
  ASSERT_EQ(chmod(path.c_str(), 0666), 0);
  EXPECT_TRUE(AskAsOrdinaryUser([&] {
    const MappedFile file(path, 1, 0, false);
    if (!file.mapping) return false;
    file.mapping[0] = 'X';
    return true;
  }));
  EXPECT_EQ(ReadWholeFile(path), "Xbc");
}

TEST(MappedFileTest, FolderCannotBeMapped) {
  const TemporaryFolder folder;
  const MappedFile reading(folder.path, 0, 0, false);
  ExpectClosed(reading);
  EXPECT_TRUE(reading.isOpen) << "it could be opened, only not mapped";
  const MappedFile writing(folder.path, 1, 0, false);
  ExpectClosed(writing);
  EXPECT_FALSE(writing.isOpen);
}

TEST(MappedFileTest, EmptyFileIsClosedAtOnce) {
  const TemporaryFolder folder;
  const int free = LowestFreeDescriptor();
  const MappedFile file(folder.AddFile("empty"), 0, 0, false);
  ExpectClosed(file);
  EXPECT_TRUE(file.isOpen);
  EXPECT_EQ(LowestFreeDescriptor(), free);
}

TEST(MappedFileTest, EmptyFileIsClosedAtOnceWhenDeferredOrWriting) {
  const TemporaryFolder folder;
  const MappedFile deferred(folder.AddFile("empty"), 0, 0, true);
  ExpectClosed(deferred);
  const MappedFile created(folder.Path("created"), 1, 0, false);
  ExpectClosed(created);
  EXPECT_TRUE(created.isOpen);
  EXPECT_TRUE(FileExists(folder.Path("created")));
}

TEST(MappedFileTest, WritingCreatesAFileOpenToAllWhateverTheMask) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("new\n\xF0\x9F\x98\x80");
  const mode_t mask = umask(077);
  const MappedFile file(path, 1, 10, false);
  umask(mask);
  ASSERT_NE(file.mapping, nullptr);
  EXPECT_EQ(ModeOf(path), 0777U);
  EXPECT_EQ(GetFileSize(path), 10U);
}

TEST(MappedFileTest, WritingOpensAnExistingFileToAll) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abc");
  ASSERT_EQ(chmod(path.c_str(), 0600), 0);
  const MappedFile file(path, 1, 0, true);
  EXPECT_EQ(ModeOf(path), 0777U);
}

TEST(MappedFileTest, WritingReachesTheFile) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abcdef");
  {
    const MappedFile file(path, -1, 0, false);
    ASSERT_NE(file.mapping, nullptr);
    EXPECT_EQ(file.writable, -1);
    file.mapping[2] = 'X';
  }
  EXPECT_EQ(ReadWholeFile(path), "abXdef");
}

TEST(MappedFileTest, ShorterFileIsExtendedBeforeMapping) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abc");
  {
    const MappedFile file(path, 1, 2 * kPage + 5, false);
    ASSERT_NE(file.mapping, nullptr);
    EXPECT_EQ(file.length, 2 * kPage + 5);
    EXPECT_EQ(file.mapping[2 * kPage], 0);
    file.mapping[2 * kPage + 4] = 'Z';
  }
  EXPECT_EQ(ReadWholeFile(path), "abc" + std::string(2 * kPage + 1, '\0') + "Z");
}

TEST(MappedFileTest, ShorterFileIsExtendedWhenMappingIsDeferred) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abc");
  const MappedFile file(path, 1, 100, true);
  EXPECT_EQ(file.mapping, nullptr);
  EXPECT_EQ(GetFileSize(path), 100U);
}

TEST(MappedFileTest, LongerFileIsNotCut) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abcdef");
  const MappedFile file(path, 1, 2, false);
  EXPECT_EQ(file.length, 2U);
  EXPECT_EQ(GetFileSize(path), 6U);
}

TEST(MappedFileTest, FileThatCannotBeExtendedIsClosed) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abc");
  const MappedFile file(path, 1, kHuge, true);
  ExpectClosed(file);
  EXPECT_TRUE(file.isOpen);
  EXPECT_EQ(ReadWholeFile(path), "abc");
}

TEST(MappedFileTest, DeferredFileIsOpenButNotMapped) {
  const TemporaryFolder folder;
  const MappedFile file(folder.AddFile("file", "abcdef"), 0, 0, true);
  EXPECT_NE(file.fd, -1);
  EXPECT_EQ(file.mapping, nullptr);
  EXPECT_EQ(file.length, 6U);
  EXPECT_EQ(file.mappedSize, 0U);
}

TEST(MappedFileTest, WindowStartsAtThePageOfItsOffset) {
  const TemporaryFolder folder;
  const std::string content = Pattern(4 * kPage);
  MappedFile file(folder.AddFile("file", content), 0, 0, true);
  const std::uint64_t offset = kPage + 904;
  EXPECT_EQ(file.Map(offset, 100), kPage);
  ASSERT_NE(file.mapping, nullptr);
  EXPECT_EQ(file.mappedSize, 904U + 100U);
  EXPECT_EQ(std::memcmp(file.mapping + 904, content.data() + offset, 100), 0);
  EXPECT_EQ(file.length, content.size()) << "a window leaves the length alone";
}

TEST(MappedFileTest, WindowAtAPageHasNoLead) {
  const TemporaryFolder folder;
  const std::string content = Pattern(3 * kPage);
  MappedFile file(folder.AddFile("file", content), 0, 0, true);
  EXPECT_EQ(file.Map(2 * kPage, 10), 2 * kPage);
  ASSERT_NE(file.mapping, nullptr);
  EXPECT_EQ(file.mappedSize, 10U);
  EXPECT_EQ(std::memcmp(file.mapping, content.data() + 2 * kPage, 10), 0);
}

TEST(MappedFileTest, WindowReplacesTheOneBefore) {
  const TemporaryFolder folder;
  const std::string content = Pattern(64 * kPage);
  MappedFile file(folder.AddFile("file", content), 0, 0, false);
  for (std::uint64_t offset = 1; offset < 60 * kPage; offset += 3 * kPage + 1) {
    const std::uint64_t start = file.Map(offset, kPage);
    ASSERT_NE(file.mapping, nullptr);
    EXPECT_EQ(start, offset / kPage * kPage);
    EXPECT_EQ(std::memcmp(file.mapping + (offset - start), content.data() + offset, kPage), 0);
  }
}

TEST(MappedFileTest, WindowBeyondFourGigabytesReachesItsPlace) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("sparse");
  constexpr std::uint64_t kOffset = (std::uint64_t{5} << 30) + 5;
  {
    MappedFile file(path, 1, kOffset + 100, true);
    const std::uint64_t start = file.Map(kOffset, 100);
    ASSERT_NE(file.mapping, nullptr);
    EXPECT_EQ(start, kOffset - 5);
    std::memcpy(file.mapping + (kOffset - start), "far", 3);
  }
  FILE* stream = OpenFile(path, "rb");
  ASSERT_NE(stream, nullptr);
  ASSERT_EQ(fseeko(stream, static_cast<off_t>(kOffset), SEEK_SET), 0);
  char text[4] = {};
  EXPECT_EQ(fread(text, 1, 3, stream), 3U);
  EXPECT_EQ(fclose(stream), 0);
  EXPECT_STREQ(text, "far");
}

TEST(MappedFileTest, WindowThatCannotBeMappedClosesTheFile) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abcdef");
  const int free = LowestFreeDescriptor();
  const struct {
    std::uint64_t offset, size;
  } windows[] = {{0, 0},
                 {0, kHuge},
                 {1, kHuge},
                 {kPage - 1, kHuge - 10},
                 {kHuge, 1},
                 {std::uint64_t{1} << 63, 1},
                 {0, std::uint64_t{1} << 62}};
  for (const auto& window : windows) {
    MappedFile file(path, 0, 0, false);
    ASSERT_NE(file.mapping, nullptr);
    file.Map(window.offset, window.size);
    ExpectClosed(file);
    EXPECT_TRUE(file.isOpen);
    EXPECT_EQ(LowestFreeDescriptor(), free) << window.offset << ", " << window.size;
    EXPECT_EQ(file.Map(0, 3), 0U);
    ExpectClosed(file);
  }
}

TEST(MappedFileTest, NewWindowUnmapsTheOneBefore) {
  const TemporaryFolder folder;
  MappedFile file(folder.AddFile("file", Pattern(kPage)), 0, 0, false);
  void* before = file.mapping;
  ASSERT_TRUE(IsMapped(before));
  // More than any address space has: nothing new can lie where the old mapping was.
  file.Map(0, std::uint64_t{1} << 62);
  EXPECT_FALSE(IsMapped(before));
}

TEST(MappedFileTest, CloseForgetsEverythingButThatItWasOpen) {
  const TemporaryFolder folder;
  const int free = LowestFreeDescriptor();
  MappedFile file(folder.AddFile("file", "abcdef"), 0, 0, false);
  file.Close();
  ExpectClosed(file);
  EXPECT_TRUE(file.isOpen);
  EXPECT_EQ(LowestFreeDescriptor(), free);
  EXPECT_EQ(file.Map(0, 3), 0U);
  file.Close();
  ExpectClosed(file);
}

TEST(MappedFileTest, DestructionUnmapsAndCloses) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", Pattern(kPage));
  const int free = LowestFreeDescriptor();
  void* mapping = nullptr;
  {
    const MappedFile file(path, 0, 0, false);
    mapping = file.mapping;
    ASSERT_TRUE(IsMapped(mapping));
  }
  EXPECT_FALSE(IsMapped(mapping));
  EXPECT_EQ(LowestFreeDescriptor(), free);
}

TEST(MappedFileTest, TwoMappingsOfAFileShareItsContent) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "abc");
  const MappedFile writer(path, 1, 0, false);
  const MappedFile reader(path, 0, 0, false);
  ASSERT_NE(writer.mapping, nullptr);
  ASSERT_NE(reader.mapping, nullptr);
  writer.mapping[1] = 'X';
  EXPECT_EQ(std::memcmp(reader.mapping, "aXc", 3), 0);
}
