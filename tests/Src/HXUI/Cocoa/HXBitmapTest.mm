#include "Src/HXUI/Cocoa/HXBitmap.h"

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "resources/Pictures.h"
#include "tests/Src/HXUI/Cocoa/BitmapFixture.h"

namespace {

using Bytes = std::vector<unsigned char>;

void AppendBigEndian(Bytes& bytes, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) {
    bytes.push_back(static_cast<unsigned char>(value >> shift));
  }
}

std::uint32_t Crc(const Bytes& bytes) {
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const unsigned char byte : bytes) {
    crc ^= byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0);
  }
  return ~crc;
}

Bytes PngChunk(const char* name, const Bytes& data) {
  Bytes body(name, name + 4);
  body.insert(body.end(), data.begin(), data.end());
  Bytes chunk;
  AppendBigEndian(chunk, static_cast<std::uint32_t>(data.size()));
  chunk.insert(chunk.end(), body.begin(), body.end());
  AppendBigEndian(chunk, Crc(body));
  return chunk;
}

constexpr std::size_t kPngHeaderLength = 33;

/// `png` with `chunk` put behind its header.
Bytes WithChunk(Bytes png, const Bytes& chunk) {
  png.insert(png.begin() + kPngHeaderLength, chunk.begin(), chunk.end());
  return png;
}

/// `png` with another width and height in its header.
Bytes WithSize(Bytes png, std::uint32_t width, std::uint32_t height) {
  Bytes header;
  AppendBigEndian(header, width);
  AppendBigEndian(header, height);
  header.insert(header.end(), png.begin() + 24, png.begin() + 29);
  const Bytes chunk = PngChunk("IHDR", header);
  std::copy(chunk.begin(), chunk.end(), png.begin() + 8);
  return png;
}

/// 144 pixels per inch.
Bytes TwofoldResolution() {
  Bytes data;
  AppendBigEndian(data, 5669);
  AppendBigEndian(data, 5669);
  data.push_back(1);
  return PngChunk("pHYs", data);
}

Bytes BytesOf(const EmbeddedFile& file) { return {file.bytes, file.bytes + file.length}; }

void Load(HXBitmap& bitmap, const Bytes& bytes) {
  bitmap.LoadFromBytes(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

class HXBitmapTest : public BitmapFixture {};

/// A folder that goes away with its files.
class Folder {
 public:
  Folder() {
    char name[] = "/tmp/HXBitmapTest.XXXXXX";
    path = mkdtemp(name);
  }
  ~Folder() {
    for (const std::string& file : files) unlink(file.c_str());
    rmdir(path.c_str());
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string Write(const std::string& name, const Bytes& bytes) {
    files.push_back(path + "/" + name);
    std::ofstream stream(files.back(), std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    return files.back();
  }

  std::string path;

 private:
  std::vector<std::string> files;
};

// Loading

TEST_F(HXBitmapTest, BannerDrawnAtTheOriginIsTheFilePixelByPixel) {
  const HXBitmap banner(kBannerPng.bytes, kBannerPng.length);
  EXPECT_EQ(banner.GetPixelSize(), (HXSize{160, 310}));
  NSBitmapImageRep* file = Decoded(kBannerPng);
  // The window is lower than the banner.
  for (const int top : {0, 20}) {
    const auto drawn = PaintBitmap(banner, {170, 290}, {0, -top});
    int differences = 0;
    for (int y = 0; y < 290; ++y) {
      for (int x = 0; x < 160; ++x) {
        if (drawn->At(x, y) != FilePixel(file, x, y + top)) ++differences;
      }
    }
    EXPECT_EQ(differences, 0) << "from row " << top;
    EXPECT_EQ(drawn->Ink({160, 0, 10, 290}, kBlack), 0);
  }
}

TEST_F(HXBitmapTest, PicturesBlendByTheirAlpha) {
  for (const EmbeddedFile* picture :
       {&kSearchPng, &kClearPng, &kCheckBoxPng, &kComboBlackTextPng, &kComboLightTextPng}) {
    HXBitmap bitmap(picture->bytes, picture->length);
    NSBitmapImageRep* file = Decoded(*picture);
    const HXSize size = bitmap.GetPixelSize();
    // Twice, because the platform keeps what it made of the picture when it drew it first.
    for (int pass = 0; pass < 2; ++pass) {
      const auto drawn = Paint({120, 30}, [&bitmap](HXCocoaDC& dc) {
        dc.SetFillColor(kGrey);
        dc.DrawRect({0, 0, 120, 30});
        dc.DrawBitmap(bitmap, {3, 4}, {0, 0});
      });
      int differences = 0;
      for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
          const HXColor expected = Over(Premultiplied(FilePixel(file, x, y)), kGrey);
          if (!IsNear(drawn->At(x + 3, y + 4), expected, 1)) ++differences;
        }
      }
      EXPECT_EQ(differences, 0) << size.width << " by " << size.height << ", pass " << pass;
    }
  }
}

TEST_F(HXBitmapTest, TheBytesAreCopied) {
  Bytes bytes = BytesOf(kSearchPng);
  HXBitmap bitmap(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
  std::fill(bytes.begin(), bytes.end(), static_cast<unsigned char>(0));
  const HXBitmap other(kSearchPng.bytes, kSearchPng.length);
  EXPECT_EQ(CountDifferences(*PaintBitmap(bitmap, {20, 20}), *PaintBitmap(other, {20, 20})), 0);
}

TEST_F(HXBitmapTest, PicturesFromBytesAndEmptyOnesAreMarkedFlipped) {
  HXBitmap bitmap(kSearchPng.bytes, kSearchPng.length);
  EXPECT_TRUE([bitmap.GetImage() isFlipped]);
  bitmap.CreateEmpty({30, 7});
  EXPECT_TRUE([bitmap.GetImage() isFlipped]);
}

TEST_F(HXBitmapTest, AGifWithoutPaletteDoesNoHarm) {
  const unsigned char gif[] = {'G', 'I', 'F',  '8',  '9',  'a',  1,    0, 1,   0,
                               0,   0,   0,    0x2C, 0,    0,    0,    0, 1,   0,
                               1,   0,   0x00, 0x02, 0x02, 0x44, 0x01, 0, 0x3B};
  HXBitmap bitmap(gif, sizeof(gif));
  EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{0, 0}));
}

TEST_F(HXBitmapTest, UndecodableBytesDrawNothing) {
  const Bytes text = {'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e', '.', '.', '.', '.', '.'};
  for (std::size_t length = 0; length <= text.size(); ++length) {
    HXBitmap bitmap(text.data(), static_cast<std::uint32_t>(length));
    EXPECT_EQ(bitmap.GetImage(), nil) << length;
    EXPECT_EQ(bitmap.GetPixelSize(), HXSize{}) << length;
    EXPECT_FALSE(bitmap.LockPixels()->HasPixels()) << length;
  }
  HXBitmap bitmap(text.data(), static_cast<std::uint32_t>(text.size()));
  const auto drawn = Paint({20, 20}, [&bitmap](HXCocoaDC& dc) {
    dc.DrawBitmap(bitmap, {0, 0}, {0, 0});
    dc.DrawBitmap(bitmap, {0, 0}, {20, 20});
    dc.DrawBitmapPart(bitmap, {0, 0}, {0, 0, 20, 20});
  });
  EXPECT_EQ(drawn->Ink({0, 0, 20, 20}, kBlack), 0);
}

TEST_F(HXBitmapTest, NoBytesAndAFreshBitmapAreEmpty) {
  HXBitmap fresh;
  HXBitmap none(nullptr, 0);
  for (HXBitmap* bitmap : {&fresh, &none}) {
    EXPECT_EQ(bitmap->GetImage(), nil);
    EXPECT_EQ(bitmap->GetPixelSize(), HXSize{});
    EXPECT_FALSE(bitmap->LockPixels()->HasPixels());
    EXPECT_EQ(PaintBitmap(*bitmap, {9, 9})->Ink({0, 0, 9, 9}, kBlack), 0);
  }
}

TEST_F(HXBitmapTest, TruncatedPngsDrawNothing) {
  HXBitmap bitmap;
  for (const std::uint32_t length : {1U, 4U, 8U, 20U, 33U, 60U, 200U, kSearchPng.length / 2}) {
    bitmap.LoadFromBytes(kSearchPng.bytes, length);
    EXPECT_EQ(bitmap.GetPixelSize(), HXSize{}) << length;
  }
  bitmap.LoadFromBytes(kBannerPng.bytes, kBannerPng.length / 2);
  EXPECT_EQ(PaintBitmap(bitmap, {20, 20})->Ink({0, 0, 20, 20}, kBlack), 0);
}

TEST_F(HXBitmapTest, PngsThatClaimToBeHugeDrawNothing) {
  const Bytes png = BytesOf(kSearchPng);
  const std::uint32_t sides[][2] = {{1000000, 1000000}, {16, 1000000},  {1000000, 16},
                                    {16, 0x7FFFFFFF},   {16384, 16384}, {0, 0}};
  for (const auto& side : sides) {
    HXBitmap bitmap;
    Load(bitmap, WithSize(png, side[0], side[1]));
    EXPECT_EQ(bitmap.GetImage(), nil) << side[0] << " by " << side[1];
  }
}

TEST_F(HXBitmapTest, LoadingAgainReplacesThePicture) {
  HXBitmap bitmap(kBannerPng.bytes, kBannerPng.length);
  bitmap.LoadFromBytes(kSearchPng.bytes, kSearchPng.length);
  EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{16, 16}));
  bitmap.LoadFromBytes(kSearchPng.bytes, 5);
  EXPECT_EQ(bitmap.GetPixelSize(), HXSize{});
}

TEST_F(HXBitmapTest, LoadingAndReplacingKeepsNoMemory) {
  const auto load = [](int times) {
    HXBitmap bitmap;
    for (int i = 0; i < times; ++i) {
      NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
      bitmap.LoadFromBytes(kSearchPng.bytes, kSearchPng.length);
      if (i % 10 == 0) bitmap.LockPixels();
      if (i % 100 == 0) bitmap.CreateEmpty({30, 30});
      [pool drain];
    }
  };
  load(500);
  const std::size_t before = mallinfo2().uordblks;
  load(10000);
  EXPECT_LT(mallinfo2().uordblks, before + 200000);
}

TEST_F(HXBitmapTest, DrawingKeepsNoMemory) {
  for (const bool lock : {false, true}) {
    HXBitmap bitmap(kSearchPng.bytes, kSearchPng.length);
    if (lock) bitmap.LockPixels();
    PaintedPanel panel(window.get(), {20, 20}, [&bitmap](HXCocoaDC& dc) {
      dc.DrawBitmap(bitmap, {0, 0}, {0, 0});
    });
    const auto draw = [&panel](int times) {
      for (int i = 0; i < times; ++i) {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        [panel.GetNativeView() display];
        [pool drain];
      }
    };
    draw(50);
    const std::size_t before = mallinfo2().uordblks;
    draw(1000);
    // The platform itself keeps a little of each drawing of fresh pixels, but no window.
    EXPECT_LT(mallinfo2().uordblks, before + (lock ? 500000U : 50000U));
  }
}

// Files

TEST_F(HXBitmapTest, FilesAreDrawnUprightLikeBytes) {
  Folder folder;
  HXBitmap bitmap;
  bitmap.LoadFromFile(folder.Write("Bänner.png", BytesOf(kBannerPng)));
  const HXBitmap bytes(kBannerPng.bytes, kBannerPng.length);
  EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{160, 310}));
  EXPECT_EQ(CountDifferences(*PaintBitmap(bitmap, {170, 290}), *PaintBitmap(bytes, {170, 290})), 0);
}

TEST_F(HXBitmapTest, PicturesFromFilesAreNotMarkedFlippedUntilTheyAreLocked) {
  Folder folder;
  const std::string readable = folder.Write("search.png", BytesOf(kSearchPng));
  for (const std::string& path : {readable, folder.path + "/missing.png"}) {
    HXBitmap bitmap(kSearchPng.bytes, kSearchPng.length);
    bitmap.LoadFromFile(path);
    EXPECT_FALSE([bitmap.GetImage() isFlipped]) << path;
    bitmap.LockPixels();
    EXPECT_TRUE([bitmap.GetImage() isFlipped]) << path;
  }
}

TEST_F(HXBitmapTest, AFileThatCannotBeReadIsAnEmptyPictureOfOneByOne) {
  Folder folder;
  const std::string text = folder.Write("text.png", {'t', 'e', 'x', 't'});
  const std::string empty = folder.Write("empty.png", {});
  for (const std::string& path : {folder.path + "/missing.png", folder.path, text, empty,
                                  std::string(), std::string("\xFF")}) {
    HXBitmap bitmap(kBannerPng.bytes, kBannerPng.length);
    bitmap.LoadFromFile(path);
    EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{1, 1})) << path;
    EXPECT_EQ(PaintBitmap(bitmap, {9, 9})->Ink({0, 0, 9, 9}, kBlack), 0) << path;
    EXPECT_EQ(PixelAt(*bitmap.LockPixels(), 0, 0), (HXColor{0, 0, 0, 0})) << path;
  }
}

TEST_F(HXBitmapTest, AMissingFilesPictureTakesOnePixel) {
  HXBitmap bitmap;
  bitmap.LoadFromFile("/no/such/picture.png");
  SetPixel(*bitmap.LockPixels(), 0, 0, kRed);
  EXPECT_EQ(PaintBitmap(bitmap, {9, 9}, {4, 5})->InkBounds({0, 0, 9, 9}, kBlack),
            (HXRect{4, 5, 1, 1}));
}

// Sizes

TEST_F(HXBitmapTest, PixelSizeOfAHighResolutionPngIsInPixels) {
  HXBitmap bitmap;
  Load(bitmap, WithChunk(BytesOf(kSearchPng), TwofoldResolution()));
  EXPECT_NEAR([bitmap.GetImage() size].width, 8, 0.1);
  EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{16, 16}));
}

TEST_F(HXBitmapTest, AHighResolutionPngIsDrawnAtItsPointSize) {
  HXBitmap bitmap;
  Load(bitmap, WithChunk(BytesOf(kCheckBoxPng), TwofoldResolution()));
  const HXRect ink = PaintBitmap(bitmap, {40, 40})->InkBounds({0, 0, 40, 40}, kBlack);
  EXPECT_LE(ink.x + ink.width, 15);
  EXPECT_LE(ink.y + ink.height, 8);
  EXPECT_GT(ink.width, 10);
}

TEST_F(HXBitmapTest, LockingAHighResolutionPngMakesItsPointSizeItsPixelSize) {
  HXBitmap bitmap;
  Load(bitmap, WithChunk(BytesOf(kCheckBoxPng), TwofoldResolution()));
  HXBitmap plain(kCheckBoxPng.bytes, kCheckBoxPng.length);
  bitmap.LockPixels();
  EXPECT_EQ([bitmap.GetImage() size].width, 28);
  EXPECT_EQ([bitmap.GetImage() size].height, 14);
  EXPECT_EQ(CountDifferences(*PaintBitmap(bitmap, {40, 40}), *PaintBitmap(plain, {40, 40}), 1), 0);
}

TEST_F(HXBitmapTest, EmptyPicturesHaveTheirSizeAndDrawNothing) {
  for (const HXSize size : {HXSize{0, 0}, HXSize{1, 1}, HXSize{30, 7}}) {
    HXBitmap bitmap;
    bitmap.CreateEmpty(size);
    EXPECT_EQ(bitmap.GetPixelSize(), size);
    EXPECT_EQ(PaintBitmap(bitmap, {40, 40})->Ink({0, 0, 40, 40}, kBlack), 0);
    EXPECT_EQ(bitmap.LockPixels()->HasPixels(), size.width > 0 && size.height > 0);
  }
}

TEST_F(HXBitmapTest, NegativeSizesAreEmpty) {
  HXBitmap bitmap;
  bitmap.CreateEmpty({-4, 8});
  EXPECT_FALSE(bitmap.LockPixels()->HasPixels());
  EXPECT_EQ(PaintBitmap(bitmap, {20, 20})->Ink({0, 0, 20, 20}, kBlack), 0);
}

// Snapshots

TEST_F(HXBitmapTest, ASnapshotShowsTheWidgetExactly) {
  PaintedPanel panel(window.get(), {50, 30}, [](HXCocoaDC& dc) {
    dc.FillGradient({0, 0, 50, 30}, kRed, kBlue, true);
    dc.SetFillColor(kWhite);
    dc.DrawRect({0, 0, 10, 5});
  });
  const auto drawn = Draw(panel);
  HXBitmap bitmap;
  HXBitmap::CopyViewToBitmap(panel, bitmap);
  EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{50, 30}));
  EXPECT_EQ(CountDifferences(*PaintBitmap(bitmap, {50, 30}), *drawn), 0);
  const auto pixels = bitmap.LockPixels();
  int differences = 0;
  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 50; ++x) differences += PixelAt(*pixels, x, y) == drawn->At(x, y) ? 0 : 1;
  }
  EXPECT_EQ(differences, 0);
}

TEST_F(HXBitmapTest, ASnapshotMakesItsWindowKey) {
  PaintedPanel panel(window.get(), {10, 10}, [](HXCocoaDC&) {});
  HXWindow other(nullptr, {0, 0}, {100, 100}, "Other", 0);
  other.SetVisible(true);
  PumpUntil([&other] { return other.IsKeyWindow(); }, "the other window to become key");
  HXBitmap bitmap;
  HXBitmap::CopyViewToBitmap(panel, bitmap);
  PumpUntil([this] { return window->IsKeyWindow(); }, "the window to become key again");
}

TEST_F(HXBitmapTest, ASnapshotOfAnObjectWithoutAViewLeavesTheBitmapAsItWas) {
  RecordingOwner owner;
  HXBitmap bitmap(kSearchPng.bytes, kSearchPng.length);
  HXBitmap::CopyViewToBitmap(owner, bitmap);
  EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{16, 16}));
}

TEST_F(HXBitmapTest, ReadsJpegAsWell) {
  // Grey, 24 by 8.
  const Bytes jpeg = {
      0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 0x4A, 0x46, 0x49, 0x46, 0x00, 0x01, 0x01, 0x00, 0x00,
      0x01, 0x00, 0x01, 0x00, 0x00, 0xFF, 0xDB, 0x00, 0x43, 0x00, 0x50, 0x37, 0x3C, 0x46, 0x3C,
      0x32, 0x50, 0x46, 0x41, 0x46, 0x5A, 0x55, 0x50, 0x5F, 0x78, 0xC8, 0x82, 0x78, 0x6E, 0x6E,
      0x78, 0xF5, 0xAF, 0xB9, 0x91, 0xC8, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
      0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
      0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
      0xC0, 0x00, 0x0B, 0x08, 0x00, 0x08, 0x00, 0x18, 0x01, 0x01, 0x11, 0x00, 0xFF, 0xC4, 0x00,
      0x14, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
      0x00, 0x00, 0x00, 0x00, 0xFF, 0xC4, 0x00, 0x14, 0x10, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00,
      0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xFF, 0xDA, 0x00, 0x08,
      0x01, 0x01, 0x00, 0x00, 0x3F, 0x00, 0x03, 0xFF, 0xD9,
  };
  HXBitmap bitmap;
  Load(bitmap, jpeg);
  EXPECT_EQ(bitmap.GetPixelSize(), (HXSize{24, 8}));
}

}  // namespace
