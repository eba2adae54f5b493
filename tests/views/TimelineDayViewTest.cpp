#include <velmora/views/TimelineDayView.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/VelmoraTheme.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;
using Texts = std::vector<std::string>;

// What English puts between the hour and the half of the day.
constexpr const char* narrowBlank = "\u202F";

void select(const char* zone, std::int64_t customOffset = 0) {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(0, 0, "somewhere", zone, customOffset, false);
  MoonPhaseData::sharedInstance().SetSelectedLocation(place);
}

class TimelineDayViewTest : public ::testing::Test {
 protected:
  TimelineDayViewTest() {
    startAfresh();
    view->setFrame({20, 30, 241, 60});  // ten points from tick to tick
  }
  ~TimelineDayViewTest() override { startAfresh(); }

  static void startAfresh() {
    ProcessValues::resetAll();
    MoonPhaseData::resetSharedInstance();
    SettingsModel::setIsIPad(false);
  }

  std::string drawn() {
    RecordingCanvas canvas;
    view->drawRect(canvas, view->bounds());
    EXPECT_TRUE(canvas.isBalanced());
    return canvas.text();
  }

  // The lines that draw the title and the labels.
  Texts drawnTexts() {
    RecordingCanvas canvas;
    view->drawRect(canvas, view->bounds());
    Texts texts;
    for (const std::string& line : canvas.lines()) {
      if (line.starts_with("drawText")) texts.push_back(line);
    }
    return texts;
  }

  ScopedLocale locale{"en_GB"};
  ScopedDevice device{Device()};
  ScopedDefaultTimeZone zone{"Etc/UTC"};
  ScopedTextEngine textEngine{std::make_shared<FixedTextEngine>()};
  std::shared_ptr<TimelineDayView> view = std::make_shared<TimelineDayView>();
};

TEST_F(TimelineDayViewTest, CanBeSeenThrough) {
  view->setBackgroundColor(Color::white());
  EXPECT_FALSE(view->isOpaque());
}

TEST_F(TimelineDayViewTest, DrawsTheTitleEveryHoursTickAndEveryFourthHoursLabel) {
  EXPECT_EQ(drawn(),
            "drawText \"TIME\" at 108.5 0 System bold 12 #B3B3B3FF\n"
            "setLineWidth 0.5\n"
            "setStrokeColor #666666FF\n"
            "drawText \"00\" at 0 32 System bold 11 #B3B3B3FF\n"
            "strokeLine 1 45 to 1 60\n"
            "strokeLine 11 52.5 to 11 60\n"
            "strokeLine 21 45 to 21 60\n"
            "strokeLine 31 52.5 to 31 60\n"
            "drawText \"04\" at 34.5 32 System bold 11 #B3B3B3FF\n"
            "strokeLine 41 45 to 41 60\n"
            "strokeLine 51 52.5 to 51 60\n"
            "strokeLine 61 45 to 61 60\n"
            "strokeLine 71 52.5 to 71 60\n"
            "drawText \"08\" at 74.5 32 System bold 11 #B3B3B3FF\n"
            "strokeLine 81 45 to 81 60\n"
            "strokeLine 91 52.5 to 91 60\n"
            "strokeLine 101 45 to 101 60\n"
            "strokeLine 111 52.5 to 111 60\n"
            "drawText \"12\" at 114.5 32 System bold 11 #B3B3B3FF\n"
            "strokeLine 121 45 to 121 60\n"
            "strokeLine 131 52.5 to 131 60\n"
            "strokeLine 141 45 to 141 60\n"
            "strokeLine 151 52.5 to 151 60\n"
            "drawText \"16\" at 154.5 32 System bold 11 #B3B3B3FF\n"
            "strokeLine 161 45 to 161 60\n"
            "strokeLine 171 52.5 to 171 60\n"
            "strokeLine 181 45 to 181 60\n"
            "strokeLine 191 52.5 to 191 60\n"
            "drawText \"20\" at 194.5 32 System bold 11 #B3B3B3FF\n"
            "strokeLine 201 45 to 201 60\n"
            "strokeLine 211 52.5 to 211 60\n"
            "strokeLine 221 45 to 221 60\n"
            "drawText \"00\" at 224.5 32 System bold 11 #B3B3B3FF\n"
            "strokeLine 231 52.5 to 231 60\n"
            "strokeLine 239 45 to 239 60\n");
}

TEST_F(TimelineDayViewTest, FromRightToLeftTicksAndLabelsAreMirrored) {
  const std::string leftToRight = drawn();
  const ScopedDevice mirrored({.forcedDirection = LayoutDirection::rightToLeft});
  const std::string text = drawn();
  EXPECT_NE(text, leftToRight);
  for (const char* const line :
       {"drawText \"TIME\" at 108.5 0 ", "drawText \"00\" at 230 32 ", "strokeLine 240 45 to 240 60\n",
        "drawText \"04\" at 195.5 32 ", "strokeLine 200 45 to 200 60\n", "drawText \"00\" at 5.5 32 ",
        "strokeLine 10 52.5 to 10 60\n", "strokeLine 2 45 to 2 60\n"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line;
  }
}

TEST_F(TimelineDayViewTest, TheRulerStandsAtTheLowerEdgeOfTheBounds) {
  view->layer().setBounds({0, 100, 241, 80});
  const std::string text = drawn();
  EXPECT_NE(text.find("drawText \"TIME\" at 108.5 100 "), std::string::npos);
  EXPECT_NE(text.find("drawText \"00\" at 0 147 "), std::string::npos);
  EXPECT_NE(text.find("strokeLine 1 160 to 1 180\n"), std::string::npos);
}

TEST_F(TimelineDayViewTest, PlainHoursWhereTheClockCountsTo24) {
  EXPECT_EQ(TimelineDayView::timelineLabels(), (Texts{"00", "04", "08", "12", "16", "20", "00"}));
}

TEST_F(TimelineDayViewTest, HoursWithTheHalfOfTheDayWhereItCountsTo12) {
  const ScopedLocale american("en_US");
  Texts expected = {"12 AM", "4 AM", "8 AM", "12 PM", "4 PM", "8 PM", "12 AM"};
  for (std::string& label : expected) label.replace(label.find(' '), 1, narrowBlank);
  EXPECT_EQ(TimelineDayView::timelineLabels(), expected);
  EXPECT_EQ(drawnTexts().back(),
            "drawText \"" + expected.back() + "\" at 216.25 32 System bold 11 #B3B3B3FF");
}

TEST_F(TimelineDayViewTest, HoursReadAsTheLocaleWritesThem) {
  const struct {
    const char* locale;
    const char* eight;
  } rows[] = {{"ja_JP", "8時"}, {"fr_FR", "08 h"}, {"de_DE", "08 Uhr"}, {"ar_EG", "٨ ص"}, {"he_IL", "8"}};
  for (const auto& row : rows) {
    startAfresh();
    const ScopedLocale local(row.locale);
    EXPECT_EQ(TimelineDayView::timelineLabels()[2], row.eight) << row.locale;
  }
}

TEST_F(TimelineDayViewTest, AUsersOwnClockHabitStandsBeforeTheRegions) {
  const ScopedLocale american(Locale("en_US").withHourCycle(Locale::HourCycle::h24));
  EXPECT_EQ(TimelineDayView::timelineLabels()[5], "20");
}

TEST_F(TimelineDayViewTest, TheLastLabelIsTheSeventhMidnightOfTheNextDay) {
  ASSERT_EQ(TimelineDayView::timelineLabels().size(), 7U);
  const Texts texts = drawnTexts();
  ASSERT_EQ(texts.size(), 8U) << "the title and seven labels";
  EXPECT_EQ(texts.back(), "drawText \"00\" at 224.5 32 System bold 11 #B3B3B3FF");
}

TEST_F(TimelineDayViewTest, HoursAreThoseOfThePlacesClocksWhateverItsZone) {
  for (const char* const name : {"Asia/Kathmandu", "Australia/Lord_Howe", "America/St_Johns"}) {
    startAfresh();
    select(name);
    EXPECT_EQ(TimelineDayView::timelineLabels(), (Texts{"00", "04", "08", "12", "16", "20", "00"})) << name;
  }
  startAfresh();
  select("", -12600);
  EXPECT_EQ(TimelineDayView::timelineLabels().front(), "00") << "a fixed offset of three and a half hours";
}

TEST_F(TimelineDayViewTest, LabelsStayAsFirstMadeUntilTheProcessValuesAreReset) {
  const Texts first = TimelineDayView::timelineLabels();
  const ScopedLocale american("en_US");
  select("Asia/Tokyo");
  EXPECT_EQ(TimelineDayView::timelineLabels(), first);
  ProcessValues::resetAll();
  EXPECT_EQ(TimelineDayView::timelineLabels().front(), std::string("12") + narrowBlank + "AM");
}

TEST_F(TimelineDayViewTest, TextsAreBoldCentredAndCut) {
  const TextAttributes hours = {.font = Font::boldSystemFont(11),
                                .color = Color::withWhite(0.7, 1),
                                .alignment = TextAlignment::center,
                                .lineBreak = LineBreak::clipping};
  TextAttributes title = hours;
  title.font = Font::boldSystemFont(12);
  EXPECT_EQ(TimelineDayView::hourTextTextAttributes(), hours);
  EXPECT_EQ(TimelineDayView::headerCenterTitleTextAttributes(), title);
}

TEST_F(TimelineDayViewTest, TextSizesFollowTheDevice) {
  const struct {
    bool isTablet;
    double screenWidth, hourSize, titleSize;
  } rows[] = {{false, 390, 11, 12}, {false, 321, 11, 12}, {false, 320, 9, 12},
              {false, 280, 9, 12},  {true, 820, 15, 15},  {true, 320, 15, 15}};
  for (const auto& row : rows) {
    startAfresh();
    SettingsModel::setIsIPad(row.isTablet);
    const ScopedDevice screen({.screenWidth = row.screenWidth});
    EXPECT_EQ(TimelineDayView::hourTextTextAttributes().font.size, row.hourSize) << row.screenWidth;
    EXPECT_EQ(TimelineDayView::headerCenterTitleTextAttributes().font.size, row.titleSize) << row.screenWidth;
  }
}

TEST_F(TimelineDayViewTest, OnATabletTheLabelsRiseWithTheirSize) {
  SettingsModel::setIsIPad(true);
  const Texts texts = drawnTexts();
  EXPECT_EQ(texts[0], "drawText \"TIME\" at 105.5 0 System bold 15 #B3B3B3FF");
  EXPECT_EQ(texts[1], "drawText \"00\" at 0 28 System bold 15 #B3B3B3FF");
  EXPECT_EQ(texts[2], "drawText \"04\" at 32.5 28 System bold 15 #B3B3B3FF");
}

TEST_F(TimelineDayViewTest, AttributesStayAsFirstMade) {
  const TextAttributes hours = TimelineDayView::hourTextTextAttributes();
  const TextAttributes title = TimelineDayView::headerCenterTitleTextAttributes();
  SettingsModel::setIsIPad(true);
  EXPECT_EQ(TimelineDayView::hourTextTextAttributes(), hours);
  EXPECT_EQ(TimelineDayView::headerCenterTitleTextAttributes(), title);
  ProcessValues::resetAll();
  EXPECT_NE(TimelineDayView::hourTextTextAttributes(), hours);
}

TEST_F(TimelineDayViewTest, TheTitleIsInTheReadersLanguage) {
  const struct {
    const char* locale;
    const char* start;
  } rows[] = {{"ja_JP", "drawText \"時刻\" at"}, {"ar_EG", "drawText \"الوقت\" at"}};
  for (const auto& row : rows) {
    startAfresh();
    const ScopedLocale local(row.locale);
    EXPECT_TRUE(drawnTexts().front().starts_with(row.start)) << drawnTexts().front();
  }
}

TEST_F(TimelineDayViewTest, TheTitlesPlaceIsKeptForTheProcess) {
  drawn();
  view->setFrame({0, 0, 482, 60});
  EXPECT_EQ(drawnTexts().front(), "drawText \"TIME\" at 108.5 0 System bold 12 #B3B3B3FF");
  ProcessValues::resetAll();
  EXPECT_EQ(drawnTexts().front(), "drawText \"TIME\" at 229 0 System bold 12 #B3B3B3FF");
}

TEST_F(TimelineDayViewTest, LinesHaveTheBorderColorOfTheDefaultTheme) {
  const auto theme = VelmoraTheme::defaultTheme();
  const Color former = theme->borderColor;
  theme->borderColor = Color::cyan();
  EXPECT_NE(drawn().find("setStrokeColor #00FFFFFF\n"), std::string::npos);
  theme->borderColor = former;
}

}  // namespace
}  // namespace velmora
