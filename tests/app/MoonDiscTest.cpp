#include <app/text/MoonDisc.h>

#include <algorithm>
#include <cmath>

#include "AppTest.h"

namespace velmora::app {
namespace {

using Lines = std::vector<std::string>;

constexpr double pi = 3.14159265358979323846;
constexpr bool onTheRight = true, onTheLeft = false, inColor = true, plain = false;

/// The disc's dots: 40 lines of 40, true where one is set.
std::vector<std::vector<bool>> dotsOf(const Lines& disc) {
  constexpr std::size_t across = 2 * discColumns;
  std::vector<std::vector<bool>> dots(4 * disc.size(), std::vector<bool>(across));
  for (std::size_t line = 0; line < disc.size(); ++line) {
    std::size_t column = 0;
    for (std::size_t at = 0; at < disc[line].size(); ++column) {
      if (disc[line][at] == ' ') {
        ++at;
        continue;
      }
      const auto bits = static_cast<unsigned>((disc[line][at + 1] & 0x3) << 6 | (disc[line][at + 2] & 0x3F));
      constexpr unsigned order[4][2] = {{0, 3}, {1, 4}, {2, 5}, {6, 7}};
      for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 2; ++j)
          dots[4 * line + i][2 * column + j] = (bits >> order[i][j] & 1U) != 0;
      }
      at += 3;
    }
  }
  return dots;
}

double shareOfDots(const Lines& disc) {
  std::ptrdiff_t count = 0;
  for (const auto& line : dotsOf(disc)) count += std::count(line.begin(), line.end(), true);
  return static_cast<double>(count) / (pi * discColumns * discColumns);
}

std::string withoutColor(const std::string& line) {
  std::string text;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '\033') {
      at = line.find('m', at);
    } else {
      text += line[at];
    }
  }
  return text;
}

TEST(MoonDisc, IsTwentyColumnsByTenLines) {
  for (const double fraction : {0.0, 0.3, 1.0}) {
    const Lines disc = moonDisc(fraction, onTheRight, plain);
    EXPECT_EQ(disc.size(), 10U);
    for (const std::string& line : disc) EXPECT_EQ(charactersOf(line), 20U);
  }
}

TEST(MoonDisc, TheFirstQuarterIsLitOnTheRightAndDottedOnTheLeft) {
  EXPECT_EQ(moonDisc(0.5, onTheRight, plain), (Lines{
                                                  "    ⢀⠄⠔⠐⠁⠁⣿⣿⣶⣶⣤⡀    ",
                                                  "  ⢀⠔⠁     ⣿⣿⣿⣿⣿⣿⣷⣄  ",
                                                  " ⠔⠁       ⣿⣿⣿⣿⣿⣿⣿⣿⣦ ",
                                                  "⢐⠁        ⣿⣿⣿⣿⣿⣿⣿⣿⣿⡇",
                                                  "⠅         ⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿",
                                                  "⠅         ⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿",
                                                  "⢐         ⣿⣿⣿⣿⣿⣿⣿⣿⣿⡇",
                                                  " ⠑        ⣿⣿⣿⣿⣿⣿⣿⣿⠟ ",
                                                  "  ⠑⢄      ⣿⣿⣿⣿⣿⣿⡿⠋  ",
                                                  "     ⠑⠄⠄⢀⢀⣿⣿⠿⠿⠛⠁    ",
                                              }));
}

TEST(MoonDisc, TheLitShareOfItsDotsIsTheLitFraction) {
  const double dottedLimb = shareOfDots(moonDisc(0, onTheRight, plain));
  EXPECT_LT(dottedLimb, 0.06);
  for (double fraction = 0; fraction <= 1; fraction += 0.01) {
    const double share = shareOfDots(moonDisc(fraction, onTheRight, plain));
    EXPECT_GE(share, fraction - 0.015) << fraction;
    EXPECT_LE(share, fraction + dottedLimb) << fraction;
  }
}

TEST(MoonDisc, LitOnTheOtherSideIsTheMirrorPicture) {
  for (const double fraction : {0.0, 0.02, 0.3, 0.5, 0.9, 1.0}) {
    auto mirrored = dotsOf(moonDisc(fraction, onTheLeft, plain));
    for (auto& line : mirrored) std::reverse(line.begin(), line.end());
    EXPECT_EQ(mirrored, dotsOf(moonDisc(fraction, onTheRight, plain))) << fraction;
  }
}

TEST(MoonDisc, AThinCrescentShowsOnItsSideAlone) {
  const auto dots = dotsOf(moonDisc(0.03, onTheRight, plain));
  for (std::size_t line = 16; line < 24; ++line) EXPECT_TRUE(dots[line][39]) << line;
  EXPECT_NE(dots[19][0], dots[20][0]) << "the dark limb has every other dot";
}

TEST(MoonDisc, ColorChangesNoLetter) {
  const Lines colored = moonDisc(0.2, onTheRight, inColor), uncolored = moonDisc(0.2, onTheRight, plain);
  for (std::size_t line = 0; line < colored.size(); ++line)
    EXPECT_EQ(withoutColor(colored[line]), uncolored[line]);
  EXPECT_EQ(colored[4].find("\033[90m⠅\033[0m"), 0U) << "the dark limb is grey";
  EXPECT_NE(colored[4].find("\033[93m⣿\033[0m"), std::string::npos) << "the lit part is bright";
}

}  // namespace
}  // namespace velmora::app
