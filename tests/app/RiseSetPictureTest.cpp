#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>

#include <velmora/platform/system/Log.h>

#include "PictureTesting.h"

namespace velmora::app {
namespace {

constexpr double iconSide = 20, narrowGlyph = 4;

/// From the first to the last glyph of a text, along the direction of reading.
struct Stretch {
  double begin = INFINITY, end = -INFINITY;

  bool isEmpty() const { return begin > end; }
  void add(double x) { begin = std::min(begin, x), end = std::max(end, x); }
};

/// The upper or the lower half of a day's strip: its two icons and the texts drawn after each.
struct Half {
  std::vector<double> icons;
  Stretch afterFirst, afterSecond;
};

/// A list of rises and sets as an SVG has it: where the glyphs and icons of each day's strip stand.
class DrawnList {
 public:
  DrawnList(const std::filesystem::path& file, bool isRightToLeft)
      : _width(statedSize(file).width), _isRightToLeft(isRightToLeft) {
    std::istringstream lines(bytesOf(file));
    for (std::string line; std::getline(lines, line);) {
      double x = 0, y = 0;
      if (std::sscanf(line.c_str(), " <use xlink:href=\"#glyph%*[^\"]\" x=\"%lf\" y=\"%lf\"", &x, &y) == 2)
        add(true, x, y);
      if (std::sscanf(line.c_str(), "<use xlink:href=\"#image%*[^,],0,0,0.25,%lf,%lf", &x, &y) == 2)
        add(false, x, y);
    }
  }

  double width() const { return _width; }
  /// Of the day from 0 on: of the Moon above, of the Sun below.
  Half half(int day, int lower) const {
    const auto found = _halves.find(2 * day + lower);
    return found == _halves.end() ? Half() : found->second;
  }

 private:
  static constexpr double titleHeight = 56, rowHeight = 80, dateWidth = 62;

  void add(bool isGlyph, double x, double y) {
    const double left = !_isRightToLeft ? x : _width - x - (isGlyph ? narrowGlyph : iconSide);
    if (y < titleHeight || left < dateWidth) return;
    Half& half = _halves[static_cast<int>((y - titleHeight) / (rowHeight / 2))];
    if (!isGlyph) return half.icons.push_back(left);
    (half.icons.size() < 2 ? half.afterFirst : half.afterSecond).add(left);
  }

  double _width;
  bool _isRightToLeft;
  std::map<int, Half> _halves;
};

class RiseSetPictureTest : public PictureTest {
 protected:
  DrawnList list(std::vector<std::string> arguments, bool isRightToLeft = false) const {
    arguments.insert(arguments.begin(), "riseset");
    return DrawnList(draw(arguments, "picture.svg"), isRightToLeft);
  }

  static Json daysOf(const std::string& city, const std::string& month) {
    return json({"riseset", "--city", city, "--from", month + "-01", "--to", month + "-31"});
  }

  /// Every time of the month's days stands on the picture, whole and over no other; what has no room even so
  /// is counted in the log.
  void expectEveryTime(const Json& days, const std::string& city, const std::string& locale) const {
    const std::string date = days[0]["date"];
    SCOPED_TRACE(locale + " " + city + " " + date);
    const ScopedLogRecord log;
    const DrawnList drawn =
        list({"--city", city, "--date", date, "--locale", locale}, locale == "ar" || locale == "he");
    int overlaps = 0;
    for (int day = 0; day < static_cast<int>(days.size()); ++day) {
      const Json& events = days[static_cast<std::size_t>(day)]["events"];
      if (happens(events, "sun", "set")) expectSunset(drawn.half(day, 1), drawn.width());
      if (happens(events, "moon", "rise") && happens(events, "moon", "set") && overlap(drawn.half(day, 0)))
        ++overlaps;
    }
    ASSERT_EQ(log.messages().size(), overlaps > 0 ? 1U : 0U);
    if (overlaps == 0) return;
    EXPECT_TRUE(log.messages()[0].ends_with("widest list: " + std::to_string(overlaps))) << log.messages()[0];
  }

 private:
  static bool happens(const Json& events, const char* body, const char* kind) {
    return std::any_of(events.begin(), events.end(),
                       [&](const Json& event) { return event["body"] == body && event["event"] == kind; });
  }

  static void expectSunset(const Half& sun, double width) {
    ASSERT_EQ(sun.icons.size(), 2U);
    EXPECT_GT(sun.afterSecond.end, sun.icons[1] + iconSide + narrowGlyph) << "sunset's time is missing";
    EXPECT_LE(sun.afterSecond.end + narrowGlyph, width) << "sunset's time is cut";
  }

  /// Of an icon that would stand before the strip there is none, nor another text near its time.
  static bool overlap(const Half& moon) {
    if (moon.icons.size() < 2) return false;
    EXPECT_FALSE(moon.afterFirst.isEmpty() || moon.afterSecond.isEmpty());
    return moon.afterFirst.end + narrowGlyph > moon.afterSecond.begin &&
           moon.afterSecond.end + narrowGlyph > moon.afterFirst.begin;
  }
};

TEST_F(RiseSetPictureTest, HasRoomForTheTimesOfEveryLanguage) {
  const Json days = daysOf("Fairbanks", "2024-07");  // at first the Sun sets at 0:41
  for (const char* language : {"ar", "de", "en", "es_US", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl",
                               "pt", "ru", "te_IN", "tr", "zh_Hans", "zh_Hant"})
    expectEveryTime(days, "Fairbanks", language);
}

TEST_F(RiseSetPictureTest, HasRoomForTheTimesOfPolarSummersAndWinters) {
  const auto expectMonth = [&](const char* city, const char* month) {
    expectEveryTime(daysOf(city, month), city, "en_US");
  };
  expectMonth("Reykjavik", "2024-05");
  expectMonth("Oulu", "2024-07");
  expectMonth("Tromsø", "2024-05");
  expectMonth("Tromsø", "2024-07");
  expectMonth("Anchorage", "2024-05");
  expectMonth("Anchorage", "2024-12");
}

TEST_F(RiseSetPictureTest, CountsTheTimesThatHaveNoRoom) {
  const ScopedLogRecord log;
  draw({"riseset", "--city", "Anchorage", "--date", "2024-05-11"});  // moonset at 4:19, moonrise at 5:53
  EXPECT_EQ(log.messages().size(), 1U);
}

TEST_F(RiseSetPictureTest, IsAsWideAsItsTimesNeed) {
  const auto widthAt = [&](const char* city, const char* date) {
    return list({"--24h", "--city", city, "--date", date}).width();
  };
  EXPECT_EQ(widthAt("Singapore", "2024-02-10"), 768);
  EXPECT_GT(widthAt("Helsinki", "2024-06-20"), 768) << "the Sun sets at 22:50";
  EXPECT_LE(widthAt("Helsinki", "2024-06-20"), 1600);
}

}  // namespace
}  // namespace velmora::app
