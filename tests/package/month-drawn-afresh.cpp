// month-drawn-afresh FILE: the month that the page on hosting shows in the end, drawn once on a new canvas.
#include <memory>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/iPhoneCalendarView.h>

int main(int, char** arguments) {
  velmora::Locale::setCurrent(velmora::Locale("de_DE"));
  velmora::Device::setCurrent({.screenWidth = 390, .screenScale = 2});
  auto helsinki = std::make_shared<velmora::GeoLocationData>();
  helsinki->SetLocation(60.1699, 24.9384, "Helsinki", "Europe/Helsinki", 0, false);
  velmora::MoonPhaseData& moon = velmora::MoonPhaseData::sharedInstance();
  moon.SetSelectedLocation(helsinki);
  moon.changeSelectedDay(18, 9, 2024);

  const auto month = std::make_shared<velmora::iPhoneCalendarView>();
  month->setFrame({0, 0, 390, 540});
  velmora::CairoCanvas canvas(velmora::PictureFormat::png, {390, 540}, 2,
                              velmora::VelmoraTheme::calendarTheme()->backgroundColor);
  month->render(canvas);
  return canvas.writeFile(arguments[1]) ? 1 : 0;
}
