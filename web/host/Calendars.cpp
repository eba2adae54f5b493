#include <web/host/Calendars.h>

#include <algorithm>

#include <velmora/phases/Phase.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonCalendarView.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/MoonRiseSetMonthView.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace velmora::web {
namespace {

Date dateOf(const PhaseItem& item) {
  return Date(std::chrono::year(static_cast<int>(item.year)),
              std::chrono::month(static_cast<unsigned>(item.month)),
              std::chrono::day(static_cast<unsigned>(item.day)));
}

/// The day of the selected month after that many.
Date dayAfter(std::size_t days) {
  const Date selected = Session::shared().day();
  return selected.year() / selected.month() / static_cast<int>(days + 1);
}

/// It follows day and place itself.
class Month : public HostedView {
  void fill(View& screen) override {
    const Settings& settings = Session::shared().settings();
    const auto month = std::make_shared<iPhoneCalendarView>();
    month->setFrame(screen.bounds());
    month->setWeekStartDay(settings.weekStart);
    month->setAlternateCalendarType(settings.secondCalendar);
    month->setHideEclipeInfo(options().hidesEclipses);
    screen.addSubview(month);
  }
  void followDay() override {}
  std::optional<Date> dayOfElement(std::size_t number) override { return dayAfter(number); }
};

class Year : public HostedView {
  void fill(View& screen) override {
    _year = std::make_shared<MoonPhaseYearView>();
    _year->setFrame(screen.bounds());
    _year->setFilteredPhase(options().showsNewMoons ? kNewMoon : kFullMoon);
    _year->calendarLocationChanged();
    screen.addSubview(_year);
  }
  void followDay() override { _year->calendarDateChanged(); }
  std::optional<Date> dayOfElement(std::size_t number) override {
    std::vector<Date> days;
    for (const auto& [month, items] : *_year->phaseDictionary()) {
      for (const auto& item : items) {
        if (item->phase == _year->filteredPhase()) days.push_back(dateOf(*item));
      }
    }
    std::sort(days.begin(), days.end());
    return number < days.size() ? std::optional(days[number]) : std::nullopt;
  }

  std::shared_ptr<MoonPhaseYearView> _year;
};

class RiseSet : public HostedView {
 public:
  double scrollOffset() override {
    size();
    return _list->offsetForDay(service().currentDay());
  }
  std::vector<std::string> pictures() override {
    return {"icons/moonrise.png", "icons/moonset.png", "icons/sunrise.png", "icons/sunset.png"};
  }

 private:
  void fill(View& screen) override {
    const Date day = Session::shared().day();
    _month = day.year() / day.month();
    _list = makeList(screen.bounds().width);
    _list->setFrame({0, 0, screen.bounds().width, _list->intrinsicContentSize().height});
    screen.addSubview(_list);
  }

  static std::shared_ptr<MoonRiseSetMonthView> makeList(double width) {
    auto list = std::make_shared<MoonRiseSetMonthView>();
    list->setAlternateCalendarType(Session::shared().settings().secondCalendar);
    list->setFrame({0, 0, width, 0});
    list->installDayViews();
    return list;
  }

  static std::vector<std::shared_ptr<MoonRiseSetDayView>> rowsOf(const MoonRiseSetMonthView& list) {
    std::vector<std::shared_ptr<MoonRiseSetDayView>> rows;
    for (const auto& row : list.subviews())
      rows.push_back(std::dynamic_pointer_cast<MoonRiseSetDayView>(row));
    return rows;
  }

  /// Within the month the rows stay, so that only those are drawn again that look otherwise.
  void followDay() override {
    const Date day = Session::shared().day();
    if (day.year() / day.month() != _month) return HostedView::followDay();
    const auto fresh = rowsOf(*makeList(_list->bounds().width)), shown = rowsOf(*_list);
    for (std::size_t row = 0; row < shown.size(); ++row) {
      if (shown[row]->isSelected() == fresh[row]->isSelected()) continue;
      shown[row]->setIsSelected(fresh[row]->isSelected());
      shown[row]->setLabelText(fresh[row]->labelText());
    }
  }
  std::optional<double> ownHeight() const override { return _list->frame().height; }
  std::vector<std::shared_ptr<View>> parts() const override { return _list->subviews(); }
  std::optional<Date> dayOfElement(std::size_t number) override { return dayAfter(number); }
  bool selectsByTap() const override { return true; }

  std::shared_ptr<MoonRiseSetMonthView> _list;
  std::chrono::year_month _month;
};

/// It follows day and place itself.
class Pictures : public HostedView {
 public:
  std::vector<std::string> pictures() override {
    std::vector<std::string> files;
    const auto numbers = service().currentMonthImageDictionary();
    if (!numbers) return files;
    for (const auto& [day, number] : *numbers) {
      files.push_back("images/IMG_" + std::to_string(number) + ".png");
    }
    return files;
  }
  /// As that of the pictures.
  Color background() const override { return Color::black(); }

 private:
  void fill(View& screen) override {
    const auto month = std::make_shared<MoonCalendarView>();
    month->setFrame(screen.bounds());
    screen.addSubview(month);
  }
  void followDay() override {}
  std::optional<Date> dayOfElement(std::size_t number) override { return dayAfter(number); }
  bool selectsByTap() const override { return true; }
};

}  // namespace

std::unique_ptr<HostedView> makeMonth() { return std::make_unique<Month>(); }
std::unique_ptr<HostedView> makeYear() { return std::make_unique<Year>(); }
std::unique_ptr<HostedView> makeRiseSet() { return std::make_unique<RiseSet>(); }
std::unique_ptr<HostedView> makePictures() { return std::make_unique<Pictures>(); }

}  // namespace velmora::web
