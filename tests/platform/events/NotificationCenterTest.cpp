#include <velmora/platform/events/NotificationCenter.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace velmora {
namespace {

using Subscription = NotificationCenter::Subscription;

static_assert(!std::is_copy_constructible_v<Subscription> && !std::is_copy_assignable_v<Subscription>);

class NotificationCenterTest : public ::testing::Test {
 protected:
  // Subscribes an observer that writes its letter into `told`.
  Subscription writing(char letter, const std::string& name = "moved") {
    return center.subscribe(name, [this, letter] { told += letter; });
  }

  NotificationCenter center;
  std::string told;
};

TEST_F(NotificationCenterTest, ObserversAreToldInOrderOfSubscription) {
  const auto a = writing('a');
  const auto b = writing('b');
  const auto c = writing('c');
  center.post("moved");
  EXPECT_EQ(told, "abc");
}

TEST_F(NotificationCenterTest, ANewSubscriptionStandsLastAlsoWhereAnOldOneHasEnded) {
  auto a = writing('a');
  const auto b = writing('b');
  a = writing('A');
  center.post("moved");
  EXPECT_EQ(told, "bA");
}

TEST_F(NotificationCenterTest, OnlyObserversOfTheNameAreTold) {
  const auto a = writing('a', "moved");
  const auto b = writing('b', "turned");
  center.post("turned");
  center.post("never subscribed");
  EXPECT_EQ(told, "b");
}

TEST_F(NotificationCenterTest, AllAreToldBeforeThePostReturns) {
  const auto a = writing('a');
  told += '<';
  center.post("moved");
  told += '>';
  EXPECT_EQ(told, "<a>");
}

TEST_F(NotificationCenterTest, ASubscriptionEndsWithItsOwner) {
  {
    const auto a = writing('a');
    center.post("moved");
  }
  center.post("moved");
  EXPECT_EQ(told, "a");
}

TEST_F(NotificationCenterTest, ASubscriptionCanBeEndedEarlyAndTwice) {
  auto a = writing('a');
  a.end();
  a.end();
  center.post("moved");
  EXPECT_EQ(told, "");
}

TEST_F(NotificationCenterTest, ASubscriptionMovesToANewOwner) {
  auto first = writing('a');
  {
    const Subscription second = std::move(first);
    center.post("moved");
  }
  center.post("moved");
  EXPECT_EQ(told, "a");
}

TEST_F(NotificationCenterTest, TakingOverAnotherSubscriptionEndsTheFormerOne) {
  auto kept = writing('a');
  auto other = writing('b');
  kept = std::move(other);
  center.post("moved");
  EXPECT_EQ(told, "b");
}

TEST_F(NotificationCenterTest, ASubscriptionMayOutliveTheCenter) {
  Subscription kept;
  {
    NotificationCenter shortLived;
    kept = shortLived.subscribe("moved", [this] { told += 'a'; });
    shortLived.post("moved");
  }
  kept.end();
  EXPECT_EQ(told, "a");
}

TEST_F(NotificationCenterTest, WhoSubscribesDuringAPostIsToldOfTheNextOne) {
  Subscription late;
  const auto a = center.subscribe("moved", [&] {
    if (told.empty()) late = writing('b');
    told += 'a';
  });
  center.post("moved");
  EXPECT_EQ(told, "a");
  center.post("moved");
  EXPECT_EQ(told, "aab");
}

TEST_F(NotificationCenterTest, WhoSubscribesDuringAPostIsToldOfAPostWithinIt) {
  Subscription late;
  const auto a = center.subscribe("moved", [&] {
    if (told.empty()) {
      told += '<';
      late = writing('b');
      center.post("moved");
      told += '>';
    }
  });
  center.post("moved");
  EXPECT_EQ(told, "<b>");
}

TEST_F(NotificationCenterTest, AnObserverThatEndsItsOwnSubscriptionFinishesItsCall) {
  Subscription a;
  a = center.subscribe("moved", [this, &a, letter = std::string("a")] {
    a.end();
    told += letter;
  });
  const auto b = writing('b');
  center.post("moved");
  center.post("moved");
  EXPECT_EQ(told, "abb");
}

TEST_F(NotificationCenterTest, WhoseSubscriptionEndsDuringAPostIsNotToldAnyMore) {
  Subscription b;
  const auto a = center.subscribe("moved", [&] {
    told += 'a';
    b.end();
  });
  b = writing('b');
  const auto c = writing('c');
  center.post("moved");
  EXPECT_EQ(told, "ac");
}

TEST_F(NotificationCenterTest, EndingAnEarlierSubscriptionDuringAPostLeavesOutNobodyElse) {
  auto a = writing('a');
  const auto b = center.subscribe("moved", [&] {
    told += 'b';
    a.end();
  });
  const auto c = writing('c');
  center.post("moved");
  center.post("moved");
  EXPECT_EQ(told, "abcbc");
}

TEST_F(NotificationCenterTest, APostWithinAPostIsDeliveredToAllBeforeTheOuterOneGoesOn) {
  const auto a = center.subscribe("moved", [this] {
    told += 'a';
    if (told == "a") center.post("moved");
  });
  const auto b = writing('b');
  center.post("moved");
  EXPECT_EQ(told, "aabb");
}

TEST_F(NotificationCenterTest, AnObserverMayPostAnotherName) {
  const auto a = center.subscribe("moved", [this] {
    told += 'a';
    center.post("turned");
  });
  const auto b = writing('b', "turned");
  const auto c = writing('c', "moved");
  center.post("moved");
  EXPECT_EQ(told, "abc");
}

TEST_F(NotificationCenterTest, AnExceptionLeavesThePostAndTheCenterStaysUsable) {
  bool fails = true;
  const auto a = writing('a');
  const auto b = center.subscribe("moved", [&] {
    if (fails) throw std::runtime_error("observer failed");
    told += 'b';
  });
  const auto c = writing('c');
  EXPECT_THROW(center.post("moved"), std::runtime_error);
  EXPECT_EQ(told, "a");
  fails = false;
  center.post("moved");
  EXPECT_EQ(told, "aabc");
}

TEST(NotificationCenter, TheDefaultCenterIsOneForTheProcess) {
  int count = 0;
  const auto subscription = NotificationCenter::defaultCenter().subscribe("moved", [&] { ++count; });
  NotificationCenter::defaultCenter().post("moved");
  EXPECT_EQ(count, 1);
}

TEST_F(NotificationCenterTest, ANameMayBeAnyText) {
  const std::string_view name = "moved";
  int count = 0;
  const auto subscription = center.subscribe(name, [&] { ++count; });
  center.post(std::string("moved"));
  center.post(name);
  EXPECT_EQ(count, 2);
}

}  // namespace
}  // namespace velmora
