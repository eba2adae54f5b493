// A program of somebody else: says what the Moon and the Sun do on a day in Helsinki and draws the month.
#include <iostream>
#include <memory>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/iPhoneCalendarView.h>

int main(int, char** arguments) {
  auto helsinki = std::make_shared<velmora::GeoLocationData>();
  helsinki->SetLocation(60.1667, 24.9667, "Helsinki", "Europe/Helsinki", 0, false);
  velmora::MoonPhaseData& moon = velmora::MoonPhaseData::sharedInstance();
  moon.SetSelectedLocation(helsinki);
  moon.changeSelectedDay(8, 4, 2024);
  const auto day = moon.GetRiseSetPhaseItemForCurrentDate();
  std::cout << moon.nameForPhase(day->phase).value_or("?") << ", sunset at minute "
            << day->riseSetData->sunSetMinutesFromMidnight << '\n';
  std::cout << "resources in " << velmora::Bundle::library().directory().string() << '\n';

  auto month = std::make_shared<velmora::iPhoneCalendarView>();
  month->setFrame({0, 0, 390, 540});
  velmora::CairoCanvas canvas(velmora::PictureFormat::png, {390, 540});
  month->render(canvas);
  const auto error = canvas.writeFile(arguments[1]);
  if (error) std::cerr << error->message << '\n';
  return error ? 1 : 0;
}
