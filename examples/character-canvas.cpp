// Hosts a view on a canvas of one's own: the Moon's disc of a day, in characters.
//   character-canvas YEAR MONTH DAY
#include <cstdlib>
#include <iostream>
#include <memory>

#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonPhaseIconView.h>

#include "CharacterCanvas.h"
#include "SelectedDay.h"

namespace {

constexpr std::size_t side = 24;

/// Two characters a point, since a character is about twice as high as wide.
void print(const CharacterCanvas& canvas) {
  for (const std::string& row : canvas.rows()) {
    for (const char character : row) std::cout << character << character;
    std::cout << '\n';
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) {
    std::cerr << "usage: character-canvas YEAR MONTH DAY\n";
    return 2;
  }
  velmora::MoonPhaseData& moon = velmora::MoonPhaseData::sharedInstance();
  if (!selectDay(moon, std::atoi(arguments[3]), std::atoi(arguments[2]), std::atoi(arguments[1]))) return 1;

  const auto disc = std::make_shared<velmora::MoonPhaseIconView>();
  disc->setFrame({0, 0, side, side});
  disc->setPhaseItem(moon.GetRiseSetPhaseItemForCurrentDate());
  disc->setIsSouthernHemisphere(moon.isSouthernHemisphere());

  CharacterCanvas canvas(side, side);
  disc->render(canvas);
  print(canvas);
}
