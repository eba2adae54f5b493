#include <gtest/gtest.h>

#include <memory>
#include <numbers>
#include <string>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/CompassView.h>
#include <velmora/views/MoonAzimuthElevationView.h>
#include <velmora/views/MoonPositionView.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/TimelineDayView.h>
#include <velmora/views/VelmoraTheme.h>

#include "tests/support/GoldenPicture.h"

namespace velmora {
namespace {

using testing::looksLikeGolden;

Color night() { return VelmoraTheme::calendarTheme()->backgroundColor; }

CairoCanvas picture(Size size, double scale = 1) {
  return CairoCanvas(PictureFormat::png, size, scale, night());
}

// The compass and the Moon's way on it as a host stacks them, turned so that north is up.
std::shared_ptr<View> skyWithNorthUp() {
  constexpr Rect area = {0, 0, 200, 200};
  constexpr float radius = 60, moonrise = 60, moonset = 300;
  auto compass = std::make_shared<CompassView>();
  compass->setFrame(area);
  compass->setRadius(radius);
  compass->setStrokeColor(VelmoraTheme::calendarTheme()->lightTextColor);
  compass->updateLayer();

  auto moon = std::make_shared<MoonAzimuthElevationView>();
  moon->setFrame(area);
  moon->setStrokeColor(VelmoraTheme::calendarTheme()->moonLightColor);
  moon->setCircleFillColor(VelmoraTheme::calendarTheme()->selectedBackgroundColor);
  moon->setRadius(radius, moonrise, moonset);
  moon->updateLayer();
  moon->setObjectAzimuth(220, 35);

  auto sky = std::make_shared<View>();
  sky->setFrame(area);
  sky->addSubview(compass);
  sky->addSubview(moon);
  sky->setTransform(AffineTransform::rotation(-std::numbers::pi / 2));
  return sky;
}

TEST(SkyViewsPixelsTest, CompassWithTheMoonsWayAndNorthUp) {
  CairoCanvas canvas = picture({200, 200}, 2);
  skyWithNorthUp()->render(canvas);
  EXPECT_TRUE(looksLikeGolden(canvas, "compass"));
}

TEST(SkyViewsPixelsTest, ChartOfPositions) {
  CairoCanvas canvas = picture({480, 480});
  const auto chart = std::make_shared<MoonPositionView>();
  chart->setFrame({0, 0, 480, 480});
  chart->render(canvas);
  EXPECT_TRUE(looksLikeGolden(canvas, "position-chart"));
}

TEST(SkyViewsPixelsTest, UprightTextsOnAnArc) {
  CairoCanvas canvas = picture({240, 150}, 2);
  double radius = 85;
  for (const char* const text : {"Waxing Crescent", "الهلال المتزايد", "三日月"}) {
    const auto view = std::make_shared<ArcTextView>();
    view->setFrame({0, 0, 240, 240});
    view->setAttributedString(
        AttributedText(text, {.font = Font::systemFont(16), .color = Color::withWhite(0.8, 1)}));
    view->setArcRadius(radius);
    view->setArcTheta(220, false);
    view->render(canvas);
    radius -= 28;
  }
  EXPECT_TRUE(looksLikeGolden(canvas, "arc-texts"));
}

class TimelinePixelsTest : public ::testing::Test {
 protected:
  TimelinePixelsTest() { startAfresh(); }
  ~TimelinePixelsTest() override { startAfresh(); }

  static void startAfresh() {
    ProcessValues::resetAll();
    MoonPhaseData::resetSharedInstance();
    SettingsModel::setIsIPad(false);
  }

  static void drawTimeline(Canvas& canvas, const std::string& locale, bool isTablet, Rect frame) {
    startAfresh();
    SettingsModel::setIsIPad(isTablet);
    const ScopedLocale reader(locale);
    const auto view = std::make_shared<TimelineDayView>();
    view->setFrame(frame);
    view->render(canvas);
  }

  ScopedDevice _device{Device()};
  ScopedDefaultTimeZone _zone{"Etc/UTC"};
};

TEST_F(TimelinePixelsTest, InEnglishArabicJapaneseAndOnATablet) {
  CairoCanvas canvas = picture({620, 300});
  drawTimeline(canvas, "en_US", false, {5, 4, 400, 64});
  drawTimeline(canvas, "ar_EG", false, {5, 78, 400, 64});
  drawTimeline(canvas, "ja_JP", false, {5, 152, 400, 64});
  drawTimeline(canvas, "en_US", true, {5, 226, 610, 64});
  EXPECT_TRUE(looksLikeGolden(canvas, "timelines"));
}

}  // namespace
}  // namespace velmora
