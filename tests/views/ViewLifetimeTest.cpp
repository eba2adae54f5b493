#include <velmora/views/MoonRiseSetMonthView.h>

#include <functional>
#include <tuple>

#include "tests/views/YearViewTesting.h"

namespace velmora {
namespace {

using testing::utc;
using testing::YearViewTest;

/// A view in a screen that alone holds it, and what is done to it.
struct Stage {
  std::shared_ptr<View> screen = std::make_shared<View>();
  std::weak_ptr<View> view;
};

struct Cause {
  const char* name;
  std::function<std::shared_ptr<View>()> makeView;  ///< drawn, so that it takes touches
  std::function<void(View&)> act;                   ///< selects 3 January 2026
};

/// What an observer does to the view that told it.
struct Deed {
  const char* name;
  std::function<void(Stage&)> happen;
};

std::shared_ptr<View> drawn(std::shared_ptr<View> view, Rect frame) {
  view->setFrame(frame);
  testing::RecordingCanvas canvas;
  view->render(canvas);
  return view;
}

std::shared_ptr<View> monthOfJanuary() {
  return drawn(std::make_shared<iPhoneCalendarView>(), {0, 0, 389, 450});
}

std::shared_ptr<View> yearOf2026() {
  const auto year = std::make_shared<MoonPhaseYearView>();
  year->calendarLocationChanged();
  return drawn(year, {0, 0, 366, 573});
}

void tap(View& view, Point point) {
  view.touchesBegan(Touch(point));
  view.touchesEnded(Touch(point));
}

/// By a reference into the view's own list, as a host may well do.
void activateActionOf(std::size_t element, View& view) {
  auto& month = dynamic_cast<iPhoneCalendarView&>(view);
  month.setAxElements(month.accessibilityElements());
  month.axElements().at(element).customActions.at(0)->activate();
}

// January 2026 begins on a Thursday; its full moon falls on Saturday, the 3rd.
const Cause causes[] = {
    {"ATapOnTheMonth", monthOfJanuary,
     [](View& view) {
       tap(view, {6 + 53 * 6 + 20, 60});
     }},
    {"TheActionOfADay", monthOfJanuary, [](View& view) { activateActionOf(3, view); }},
    {"ChangeSelectedDay", monthOfJanuary,
     [](View& view) { dynamic_cast<iPhoneCalendarView&>(view).changeSelectedDay(3); }},
    {"ATapOnTheYear", yearOf2026,
     [](View& view) {
       tap(view, {8 + 50 * 6 + 25, 90});
     }},
    {"TheActionOfAMoon", yearOf2026, [](View& view) { activateActionOf(0, view); }},
    {"ChangeSelectedItem", yearOf2026,
     [](View& view) {
       auto& year = dynamic_cast<MoonPhaseYearView&>(view);
       year.changeSelectedItem(year.phaseDictionary()->at(1).at(0));
     }},
};

const Deed deeds[] = {
    {"TakesItOut", [](Stage& stage) { stage.view.lock()->removeFromSuperview(); }},
    {"LetsGoOfTheScreen", [](Stage& stage) { stage.screen.reset(); }},
    {"EmptiesItsElements",
     [](Stage& stage) {
       const auto view = std::dynamic_pointer_cast<iPhoneCalendarView>(stage.view.lock());
       view->setAxElements({});
       stage.screen.reset();
     }},
    {"ReplacesItAndItsSiblings",
     [](Stage& stage) {
       while (!stage.screen->subviews().empty()) stage.screen->subviews().back()->removeFromSuperview();
       stage.screen->addSubview(std::make_shared<iPhoneCalendarView>());
     }},
    {"StartsTheServiceAfresh",
     [](Stage& stage) {
       stage.screen.reset();
       MoonPhaseData::resetSharedInstance();
     }},
};

class ViewLifetimeTest : public YearViewTest, public ::testing::WithParamInterface<std::tuple<Cause, Deed>> {
 protected:
  ViewLifetimeTest() {
    view.reset();
    year.reset();
    select(utc(2026, 1, 20));
    const auto made = cause().makeView();
    stage.view = made;
    stage.screen->addSubview(made);
    stage.screen->addSubview(std::make_shared<iPhoneCalendarView>());
  }

  static const Cause& cause() { return std::get<0>(GetParam()); }

  void happenOnce() {
    if (std::exchange(hasHappened, true)) return;
    std::get<1>(GetParam()).happen(stage);
  }

  void act() {
    View& acting = *stage.view.lock();  // as a host calls it: nothing here keeps it alive
    cause().act(acting);
  }

  Stage stage;
  bool hasHappened = false;
};

TEST_P(ViewLifetimeTest, AnObserverOfItsPostMayEndIt) {
  const auto subscription = NotificationCenter::defaultCenter().subscribe(kCalenderDateChangedNotification,
                                                                          [this] { happenOnce(); });
  act();
  EXPECT_TRUE(hasHappened);
  EXPECT_TRUE(stage.view.expired());
}

TEST_P(ViewLifetimeTest, WhoSpeaksItsAnnouncementMayEndIt) {
  const ScopedAnnouncementSink sink([this](const std::string&) { happenOnce(); });
  act();
  EXPECT_TRUE(hasHappened);
  EXPECT_TRUE(stage.view.expired());
}

INSTANTIATE_TEST_SUITE_P(Views, ViewLifetimeTest,
                         ::testing::Combine(::testing::ValuesIn(causes), ::testing::ValuesIn(deeds)),
                         [](const auto& parameters) {
                           return std::string(std::get<0>(parameters.param).name) +
                                  std::get<1>(parameters.param).name;
                         });

// The rows are replaced, as an application does when the day changes, while a finger is on one of them.
TEST_F(YearViewTest, ARowReplacedUnderAFingerIsTouchedNoMore) {
  select(utc(2026, 1, 20));
  const auto month = std::make_shared<MoonRiseSetMonthView>();
  month->setFrame({0, 0, 390, 2480});
  month->installDayViews();
  month->layoutSubviews();
  const std::weak_ptr<View> touched = month->hitTest({100, 170});
  EXPECT_EQ(touched.lock(), month->subviews().at(2));
  touched.lock()->touchesBegan(Touch({100, 170}));
  month->installDayViews();
  EXPECT_TRUE(touched.expired());
}

}  // namespace
}  // namespace velmora
