#include <velmora/phases/MonthDataItem.h>

#include <gtest/gtest.h>

#include <tests/phases/Places.h>
#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/phases/RiseSetPhaseItem.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

MonthDataItem itemOfPhase(std::int64_t phase) { return {phase, 25, "07:00", utc(2024, 3, 25, 7)}; }

TEST(MonthDataItem, KeepsPhaseDayTimeAndInstant) {
  const MonthDataItem item = itemOfPhase(2);
  EXPECT_EQ(item.phase, 2);
  EXPECT_EQ(item.day, 25);
  EXPECT_EQ(item.time, "07:00");
  EXPECT_EQ(item.localDate, utc(2024, 3, 25, 7));
}

TEST(MonthDataItem, LitFractionFollowsFromThePhaseOnce) {
  EXPECT_EQ(itemOfPhase(0).fullFactor, 1.0F);
  EXPECT_EQ(itemOfPhase(1).fullFactor, 0.5F);
  EXPECT_EQ(itemOfPhase(2).fullFactor, 0.5F);
  EXPECT_EQ(itemOfPhase(3).fullFactor, 0.0F);
  EXPECT_EQ(itemOfPhase(-1).fullFactor, 0.0F);
  MonthDataItem item = itemOfPhase(0);
  item.phase = 3;
  EXPECT_EQ(item.fullFactor, 1.0F);
}

TEST(MonthDataItem, ItsNameComesFromTheHostsTable) {
  const TemporaryFolder folder;
  folder.write("de.lproj/Localizable.strings",
               "<plist><dict><key>Full Moon</key><string>Vollmond</string></dict></plist>");
  const ScopedMainBundle bundle(folder.path());
  const ScopedLocale german("de_DE");
  EXPECT_EQ(itemOfPhase(0).phaseString(), "Vollmond");
  EXPECT_EQ(itemOfPhase(3).phaseString(), "New Moon") << "the key itself where there is no translation";
}

TEST(MonthDataItem, OnlyPrincipalPhasesHaveAName) {
  for (const std::int64_t phase : {-1, 4, 7, 8})
    EXPECT_EQ(itemOfPhase(phase).phaseString(), std::nullopt) << phase;
  for (const std::int64_t phase : {0, 1, 2, 3}) EXPECT_TRUE(itemOfPhase(phase).phaseString()) << phase;
}

TEST(PhaseItem, StartsEmpty) {
  const RiseSetPhaseItem item;
  EXPECT_EQ(item.day, 0);
  EXPECT_EQ(item.month, 0);
  EXPECT_EQ(item.year, 0);
  EXPECT_EQ(item.moonAge, 0);
  EXPECT_EQ(item.phase, 0);
  EXPECT_EQ(item.fullFactor, 0.0F);
  EXPECT_EQ(item.localDate, std::nullopt);
  EXPECT_EQ(item.weekDay, 0);
  EXPECT_EQ(item.timeText, "");
  EXPECT_FALSE(item.riseSetData);
}

TEST(PhaseItem, ADayWithRiseAndSetIsOneToo) {
  const auto item = std::make_shared<RiseSetPhaseItem>();
  const std::shared_ptr<PhaseItem> day = item;
  day->moonAge = 15;
  EXPECT_EQ(item->moonAge, 15);
}

}  // namespace
}  // namespace velmora
