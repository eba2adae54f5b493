#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/phases/Phase.h>
#include <velmora/phases/RiseSetPhaseItem.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/OncePerProcess.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"
#include "tests/support/SourceDirectory.h"

namespace velmora {

using Lines = std::vector<std::string>;

inline RiseSetData risesAndSets() {
  RiseSetData data;
  data.moonRiseText = "10:00";
  data.moonRiseMinutesFromMidnight = 600;
  data.moonSetText = "20:00";
  data.moonSetMinutesFromMidnight = 1200;
  data.sunRiseText = "06:00";
  data.sunRiseMinutesFromMidnight = 360;
  data.sunSetText = "18:00";
  data.sunSetMinutesFromMidnight = 1080;
  data.dayLengthMinutes = 720;
  return data;
}

inline RiseSetData withMoon(std::int64_t rise, std::int64_t set) {
  RiseSetData data = risesAndSets();
  data.moonRiseMinutesFromMidnight = rise;
  data.moonSetMinutesFromMidnight = set;
  return data;
}

inline std::shared_ptr<RiseSetPhaseItem> fullMoonOn(RiseSetData data) {
  auto item = std::make_shared<RiseSetPhaseItem>();
  item->phase = kFullMoon;
  item->fullFactor = 1;
  item->riseSetData = std::move(data);
  return item;
}

/// A row of 425 points, so that a minute is a quarter of a point wide on its strip.
class RiseSetDayTest : public ::testing::Test {
 protected:
  RiseSetDayTest() {
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
    row->setFrame({0, 160, 425, 80});
    row->setPhaseItem(fullMoonOn(risesAndSets()));
    row->setLabelText(AttributedText("14 Fri", {.font = Font::systemFont(13), .color = Color::white()}));
  }
  ~RiseSetDayTest() override {
    SettingsModel::setIsIPad(false);
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
  }

  Lines drawn() {
    testing::RecordingCanvas canvas;
    row->drawRect(canvas, row->bounds());
    EXPECT_TRUE(canvas.isBalanced());
    return canvas.lines();
  }

  Lines drawnStarting(const std::string& beginning) {
    Lines found;
    for (const std::string& line : drawn()) {
      if (line.starts_with(beginning)) found.push_back(line);
    }
    return found;
  }

  /// What the strip draws of the Moon: up to the first line in the colour of daylight.
  Lines drawnOfMoon(std::int64_t rise, std::int64_t set) {
    row->setPhaseItem(fullMoonOn(withMoon(rise, set)));
    const Lines all = drawn();
    const auto begin = std::find(all.begin(), all.end(), "setFillColor #2E4073CC");
    return {begin, std::find(begin, all.end(), "setFillColor #67518666")};
  }

  std::optional<std::string> lineOfText(const std::string& text) {
    const Lines found = drawnStarting("drawText \"" + text + "\"");
    return found.size() == 1 ? std::optional(found.front()) : std::nullopt;
  }

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
  ScopedMainBundle mainBundle{sourceDirectory() + "/app/resources"};
  ScopedTextEngine textEngine{std::make_shared<testing::FixedTextEngine>()};
  std::shared_ptr<MoonRiseSetDayView> row = std::make_shared<MoonRiseSetDayView>();
};

inline constexpr const char* moonColor = "setFillColor #2E4073CC";

inline Lines iconLines(const std::string& name, const std::string& alpha, const std::string& rect) {
  return {"save", "setBlendMode overlay", "setAlpha " + alpha, "drawImage " + name + " in " + rect,
          "restore"};
}

inline std::string timeLine(const std::string& text, const std::string& place) {
  return "drawText \"" + text + "\" at " + place + " System bold 12 #999999FF";
}

inline Lines joined(const std::vector<Lines>& parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

}  // namespace velmora
