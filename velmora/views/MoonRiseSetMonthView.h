#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/platform/ui/View.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/AlternateCalendarType.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora {

class MoonRiseSetDayView;

/// The selected month of the shared service as a list of rows, one MoonRiseSetDayView a day from the top
/// down. A host calls `installDayViews` first and after every change of date, place, language or calendar,
/// gives the view the height of its intrinsic size and scrolls it to `offsetForDay`.
class MoonRiseSetMonthView : public View {
 public:
  /// As the service returns them.
  using RiseSetItems = MoonPhaseData::RiseSetItems;

  /// The date that the rows were installed for; none before that.
  const std::optional<Instant>& selectedDate() const { return _selectedDate; }
  /// The days that the rows show; none before they are installed and for a year without a table.
  const std::shared_ptr<const RiseSetItems>& monthRiseSetPhaseItems() const {
    return _monthRiseSetPhaseItems;
  }

  /// The calendar whose day stands behind the day number, in place of the weekday, from the next installation
  /// on: 1 to 4 of AlternateCalendarType; 0, the default, and all others show none.
  std::int64_t alternateCalendarType() const { return _alternateCalendarType; }
  void setAlternateCalendarType(std::int64_t type) { _alternateCalendarType = type; }

  /// Held for the host application alone: the rows draw with the shared calendar theme, or their own.
  const std::shared_ptr<VelmoraTheme>& colorTheme() const { return _colorTheme; }
  void setColorTheme(std::shared_ptr<VelmoraTheme> theme) { _colorTheme = std::move(theme); }

  /// Of the rows' labels: centred, cut at their rectangle, made once per process.
  static const TextAttributes& dateTextAttributes();
  /// The same on the selected day.
  static const TextAttributes& selectedDateTextAttributes();

  /// Replaces all subviews by the rows of the service's selected month. Without items, rows have a number
  /// alone.
  void installDayViews();

  /// As wide as the view, as high as its rows together; whole points.
  Size intrinsicContentSize() const override;

  /// How far down to scroll, in points, so that the day is the third row seen, or higher up the first days of
  /// the month; 0 without items or rows. Late in the month it may lie farther down than a list can scroll.
  double offsetForDay(std::int64_t day) const;

 private:
  void removeSubviews();
  std::shared_ptr<MoonRiseSetDayView> makeDayView(std::int64_t day) const;
  bool isSelected(std::int64_t day) const;
  AttributedText labelText(std::int64_t day, const RiseSetPhaseItem* item) const;
  std::shared_ptr<RiseSetPhaseItem> itemOfDay(std::int64_t day) const;
  std::shared_ptr<const MoonRiseSetDayView> firstDayView() const;

  std::optional<Instant> _selectedDate;
  std::shared_ptr<const RiseSetItems> _monthRiseSetPhaseItems;
  std::int64_t _alternateCalendarType = kNoAlternateCalendar;
  std::shared_ptr<VelmoraTheme> _colorTheme;
  NumberFormatter _numberFormatter;
};

}  // namespace velmora
