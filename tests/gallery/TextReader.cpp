#include "tests/gallery/TextReader.h"

#include <array>
#include <cstdlib>

namespace {

/// Left of a bar's two inked columns in its own cell.
constexpr int kBarBearing = 1;

/// Letters that are more than one byte stand in the alphabet as numbers: the two that the
/// font draws as one, and some beyond ASCII.
const std::array<std::string, 4> kLongLetters{"", "fi", "\u00E9", "\u00E0"};

std::string Spell(char letter) {
  const auto number = static_cast<std::size_t>(static_cast<unsigned char>(letter));
  return number < kLongLetters.size() ? kLongLetters[number] : std::string(1, letter);
}

bool IsBar(const Picture& picture, int x, int y) {
  constexpr int kFaint = 30;
  const auto isInked = [](Color color) { return color.red > TextReader::kPaper.red + kFaint; };
  return picture.Count({x, y, 1, TextReader::kLineHeight}, isInked) == TextReader::kLineHeight;
}

/// The first column of each bar. Letters have no column that is inked from top to bottom.
std::vector<int> FindBars(const Picture& picture, Area line) {
  std::vector<int> bars;
  for (int x = line.x; x < line.x + line.width; ++x) {
    if (!IsBar(picture, x, line.y)) continue;
    bars.push_back(x);
    while (IsBar(picture, x, line.y)) ++x;
  }
  return bars;
}

/// Whether `glyph` stands at (x, y). Its neighbours may touch it here and there.
bool Fits(const Picture& glyph, const Picture& picture, int x, int y) {
  constexpr int kTouch = 12;
  int difference = 0;
  for (int row = 0; row < glyph.height; ++row) {
    for (int column = 0; column < glyph.width; ++column) {
      const int more = picture.At(x + column, y + row).red - glyph.At(column, row).red;
      // The letter before may reach into the first column.
      if (column > 0 || more < 0) difference += std::abs(more);
    }
  }
  return difference <= kTouch * glyph.width;
}

}  // namespace

const std::string TextReader::kAlphabet =
    "\1\2\3"
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 =:,.()-#\"'&";

std::string TextReader::Lesson(const std::string& letters) {
  // The distance of the first two bars tells how wide a bar is.
  std::string text = "||";
  for (const char letter : letters) text += Spell(letter) + "|";
  return text;
}

bool TextReader::Learn(const Picture& picture, Area line, const std::string& letters) {
  const std::vector<int> bars = FindBars(picture, line);
  if (bars.size() != letters.size() + 2) return false;
  const int barWidth = bars[1] - bars[0];
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const int x = bars[i + 1] - kBarBearing + barWidth;
    const int width = bars[i + 2] - bars[i + 1] - barWidth;
    if (width <= 0) return false;
    glyphs[letters[i]] = picture.Crop({x, line.y, width, kLineHeight});
  }
  return true;
}

char TextReader::LetterAt(const Picture& picture, int x, int y) const {
  char found = 0;
  int widest = 0;
  for (const auto& [letter, glyph] : glyphs) {
    const bool inside = picture.IsInside(x + glyph.width - 1, y + glyph.height - 1);
    if (!inside || glyph.width <= widest || !Fits(glyph, picture, x, y)) continue;
    found = letter;
    widest = glyph.width;
  }
  return found;
}

std::string TextReader::ReadLine(const Picture& picture, Area line) const {
  std::string text;
  for (int x = line.x; x < line.x + line.width;) {
    const Area rest{x, line.y, line.x + line.width - x, line.height};
    if (!picture.HasInk(rest, kPaper)) break;
    const char letter = LetterAt(picture, x, line.y);
    text += letter == 0 ? "?" : Spell(letter);
    x += letter == 0 ? 1 : glyphs.at(letter).width;
  }
  // The last letter may reach beyond its width, which then looks like a blank.
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

std::vector<std::string> TextReader::Read(const Picture& picture, Area area, int pitch) const {
  std::vector<std::string> lines;
  for (int y = area.y; y + kLineHeight <= area.y + area.height; y += pitch) {
    const std::string line = ReadLine(picture, {area.x, y, area.width, kLineHeight});
    if (line.empty()) break;
    lines.push_back(line);
  }
  return lines;
}
