#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

struct Color {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
  auto operator<=>(const Color&) const = default;
};

/// In pixels, from the top left corner.
struct Area {
  int x;
  int y;
  int width;
  int height;
};

/// What a part of the screen showed at one moment.
class Picture {
 public:
  Picture() = default;
  Picture(int width, int height) : width(width), height(height), pixels(Index(0, height)) {}

  bool operator==(const Picture&) const = default;

  /// The pixel must be inside.
  Color& At(int x, int y) { return pixels[Index(x, y)]; }
  Color At(int x, int y) const { return pixels[Index(x, y)]; }
  bool IsInside(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }

  /// Empty unless the area is inside.
  Picture Crop(Area area) const;
  int Count(Area area, const std::function<bool(Color)>& property) const;
  /// How many pixels of the area have, or have not, the colour `paper`.
  int CountPaper(Area area, Color paper) const;
  int CountInk(Area area, Color paper) const;
  bool HasInk(Area area, Color paper) const { return CountInk(area, paper) > 0; }

  /// Writes a PNG file, for people.
  void Write(const std::string& file) const;

  int width = 0;
  int height = 0;

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x);
  }

  std::vector<Color> pixels;
};

/// The shape of a text, whatever its place and its colours are.
class Lettering {
 public:
  /// The text on `paper` in `area`; the strongest contrast there is taken for ink.
  Lettering(const Picture& picture, Area area, Color paper);

  /// The same text, perhaps drawn at another fraction of a pixel.
  bool LooksLike(const Lettering& other) const;
  std::string Describe() const;

  int width = 0;
  int height = 0;
  int inkedPixels = 0;
};
