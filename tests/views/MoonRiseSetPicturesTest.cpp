#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonRiseSetMonthView.h>
#include <velmora/views/OncePerProcess.h>

#include "tests/support/GoldenPicture.h"
#include "tests/support/SourceDirectory.h"

namespace velmora {
namespace {

struct Week {
  const char* name;  ///< of the golden picture
  const char* locale;
  double latitude, longitude;
  const char* zone;
  std::int64_t day;  ///< of June 2024, selected
  std::int64_t alternateCalendarType;
};

void PrintTo(const Week& week, std::ostream* out) { *out << week.name; }

constexpr Size weekSize{390, 7 * 80};
constexpr Color night{14.0 / 255, 12.0 / 255, 22.0 / 255, 1};

class MoonRiseSetPicturesTest : public ::testing::TestWithParam<Week> {
 protected:
  MoonRiseSetPicturesTest() { forget(); }
  ~MoonRiseSetPicturesTest() override { forget(); }

  static void forget() {
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
  }

  static void select(const Week& week) {
    auto place = std::make_shared<GeoLocationData>();
    place->SetLocation(week.latitude, week.longitude, week.name, week.zone, 0, false);
    const Calendar there(*TimeZone::named(week.zone));
    const Instant noon = there.date({.year = 2024, .month = 6, .day = week.day, .hour = 12});
    MoonPhaseData::sharedInstance().SetSelectedLocation(place, noon);
  }

  /// The month scrolled to its selected day in a window of a week's height.
  static std::shared_ptr<View> window(const Week& week) {
    const auto month = std::make_shared<MoonRiseSetMonthView>();
    month->setAlternateCalendarType(week.alternateCalendarType);
    month->installDayViews();
    month->setFrame(
        {0, -month->offsetForDay(week.day), weekSize.width, month->intrinsicContentSize().height});
    auto view = std::make_shared<View>();
    view->setFrame({0, 0, weekSize.width, weekSize.height});
    view->addSubview(month);
    return view;
  }

  ScopedDevice device{Device()};
  ScopedDefaultTimeZone zone{"Etc/UTC"};
  ScopedMainBundle mainBundle{sourceDirectory() + "/app/resources"};
};

TEST_P(MoonRiseSetPicturesTest, AWeekLooksAsItShould) {
  const ScopedLocale locale(GetParam().locale);
  select(GetParam());
  CairoCanvas canvas(PictureFormat::png, weekSize, 1, night);
  window(GetParam())->render(canvas);
  EXPECT_TRUE(testing::looksLikeGolden(canvas, GetParam().name));
}

// The English week has a day without moonrise, the Arabic one shows the Islamic day in place of the weekday,
// the Japanese one is that of the solstice.
const Week weeks[] = {
    {"riseset-week-english", "en_US", 37.785, -122.392, "America/Los_Angeles", 24, 0},
    {"riseset-week-arabic", "ar_EG", 30.044, 31.236, "Africa/Cairo", 14, 2},
    {"riseset-week-japanese", "ja_JP", 35.690, 139.692, "Asia/Tokyo", 20, 0},
};

INSTANTIATE_TEST_SUITE_P(Languages, MoonRiseSetPicturesTest, ::testing::ValuesIn(weeks),
                         [](const auto& week) { return std::string(week.param.locale); });

}  // namespace
}  // namespace velmora
