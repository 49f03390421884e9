#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/endtoend/Picture.h"

/// Reads the gallery's small print from the screen. It knows no font: it is shown
/// each letter once, between two bars, and finds it again by its pixels. That is
/// exact, as letters stand on whole pixels.
class TextReader {
 public:
  /// The letters that it can learn.
  static const std::string kAlphabet;

  /// A text that shows `letters` the way `Learn` needs them.
  static std::string Lesson(const std::string& letters);
  /// Learns from the end of a line that shows the lesson; `line` is as high as
  /// kLineHeight. False, and nothing learnt, when it does not show all of it yet.
  bool Learn(const Picture& picture, Area line, const std::string& letters);

  /// The lines of a panel from the first one at the top of `area`, `pitch` pixels
  /// apart, until an empty one. What cannot be read becomes "?".
  std::vector<std::string> Read(const Picture& picture, Area area, int pitch) const;

  static constexpr int kLineHeight = 12;
  static constexpr Color kPaper{30, 30, 30};

 private:
  using Glyph = Picture;

  std::string ReadLine(const Picture& picture, Area line) const;
  /// The widest letter that looks like what begins at `x`; 0 for none.
  char LetterAt(const Picture& picture, int x, int y) const;

  std::map<char, Glyph> glyphs;
};
