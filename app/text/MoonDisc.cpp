#include <app/text/MoonDisc.h>

#include <array>
#include <cmath>

namespace velmora::app {
namespace {

constexpr int dotColumns = 2, dotLines = 4;  // of one braille letter
constexpr int discLines = discColumns / 2;
constexpr int diameter = discColumns * dotColumns;  // in dots; as many lines of dots
constexpr double limbWidth = 2.0 / diameter;        // one dot, in radii

/// The bit of each dot of a braille letter, by line and column.
constexpr std::array<std::array<unsigned, dotColumns>, dotLines> dotBits = {
    {{0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}}};

constexpr const char* bright = "\033[93m";
constexpr const char* grey = "\033[90m";
constexpr const char* plain = "\033[0m";

enum class Dot { none, limb, lit };

/// Where the middle of a dot lies, -1 to 1 across the disc.
double position(int dot) { return (2 * dot + 1.0) / diameter - 1; }

/// The dot in that line and column of a disc that is lit on the right. The limb of the dark part has every
/// other dot alone, so that a thin crescent stands out from it.
Dot dotAt(int line, int column, double litFraction) {
  const double x = position(column), y = position(line);
  const double radius = std::hypot(x, y);
  if (radius > 1) return Dot::none;
  const double terminator = (1 - 2 * litFraction) * std::sqrt(1 - y * y);
  if (x > terminator) return Dot::lit;
  return radius > 1 - limbWidth && (line + column) % 2 == 0 ? Dot::limb : Dot::none;
}

/// One letter: which of its dots are set, and whether one of them is lit.
struct Letter {
  unsigned dots = 0;
  bool isLit = false;
};

Letter letterAt(int line, int column, double litFraction, bool isLitOnTheRight) {
  Letter letter;
  for (int i = 0; i < dotLines; ++i) {
    for (int j = 0; j < dotColumns; ++j) {
      const int across = column * dotColumns + j;
      const Dot dot =
          dotAt(line * dotLines + i, isLitOnTheRight ? across : diameter - 1 - across, litFraction);
      if (dot != Dot::none) letter.dots |= dotBits[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
      letter.isLit = letter.isLit || dot == Dot::lit;
    }
  }
  return letter;
}

/// The letter of Unicode's braille block (U+2800 on) in UTF-8.
std::string utf8(unsigned dots) {
  return {'\xE2', static_cast<char>(0xA0U | (dots >> 6U)), static_cast<char>(0x80U | (dots & 0x3FU))};
}

std::string written(const Letter& letter, bool inColor) {
  if (letter.dots == 0) return " ";
  const std::string text = utf8(letter.dots);
  return inColor ? (letter.isLit ? bright : grey) + text + plain : text;
}

}  // namespace

std::vector<std::string> moonDisc(double litFraction, bool isLitOnTheRight, bool inColor) {
  std::vector<std::string> lines(discLines);
  for (int line = 0; line < discLines; ++line) {
    for (int column = 0; column < discColumns; ++column) {
      lines[static_cast<std::size_t>(line)] +=
          written(letterAt(line, column, litFraction, isLitOnTheRight), inColor);
    }
  }
  return lines;
}

}  // namespace velmora::app
