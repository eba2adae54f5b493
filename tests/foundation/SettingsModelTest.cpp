#include <velmora/foundation/SettingsModel.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace velmora {
namespace {

TEST(SettingsModel, EveryCallAnswersTheSameInstance) {
  EXPECT_EQ(&SettingsModel::sharedInstance(), &SettingsModel::sharedInstance());
}

TEST(SettingsModel, ThreadsThatAskAtOnceGetTheSameInstance) {
  std::vector<SettingsModel*> seen(8);
  std::vector<std::thread> threads;
  for (auto& slot : seen) threads.emplace_back([&slot] { slot = &SettingsModel::sharedInstance(); });
  for (auto& thread : threads) thread.join();
  for (const SettingsModel* instance : seen) EXPECT_EQ(instance, &SettingsModel::sharedInstance());
}

// Runs in a process of its own under CTest, so the shared instance is as new.
TEST(SettingsModel, EveryPropertyStartsAtZero) {
  const SettingsModel& settings = SettingsModel::sharedInstance();
  EXPECT_EQ(settings.mapMode(), 0);
  EXPECT_EQ(settings.mapProvider(), 0);
  EXPECT_EQ(settings.mapOrientation(), 0);
  EXPECT_EQ(settings.timeFormat(), 0);
  EXPECT_EQ(settings.units(), 0);
  EXPECT_FALSE(settings.disableScreenOrientation());
}

TEST(SettingsModel, PropertiesKeepWhatTheHostStores) {
  SettingsModel& settings = SettingsModel::sharedInstance();
  settings.setMapMode(1);
  settings.setMapProvider(2);
  settings.setMapOrientation(3);
  settings.setTimeFormat(4);
  settings.setUnits(5);
  settings.setDisableScreenOrientation(true);
  EXPECT_EQ(settings.mapMode(), 1);
  EXPECT_EQ(settings.mapProvider(), 2);
  EXPECT_EQ(settings.mapOrientation(), 3);
  EXPECT_EQ(settings.timeFormat(), 4);
  EXPECT_EQ(settings.units(), 5);
  EXPECT_TRUE(settings.disableScreenOrientation());
  settings.setMapMode(0);
  settings.setMapProvider(0);
  settings.setMapOrientation(0);
  settings.setTimeFormat(0);
  settings.setUnits(0);
  settings.setDisableScreenOrientation(false);
}

TEST(SettingsModel, TheDeviceSaysWhetherItIsATablet) {
  EXPECT_FALSE(SettingsModel::isIPad());
  SettingsModel::setIsIPad(true);
  EXPECT_TRUE(SettingsModel::isIPad());
  SettingsModel::setIsIPad(false);
}

}  // namespace
}  // namespace velmora
