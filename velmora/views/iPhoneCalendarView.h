#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <velmora/platform/events/NotificationCenter.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/platform/ui/View.h>
#include <velmora/views/AlternateCalendarType.h>
#include <velmora/views/MonthGrid.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora {

struct PhaseItem;

/// The selected month of the shared service as a grid of phase discs with day numbers. A touch on a day, or
/// its accessibility action, selects it in the service; the view keeps in step with a selection made
/// elsewhere. A changed property and another place ask for a drawing; after a change of a theme's colours, or
/// of what is set for the process, the host asks for it.
///
/// Source files: iPhoneCalendarView.cpp (selection and touches), MonthDrawing.cpp, MonthAccessibility.cpp.
class iPhoneCalendarView : public View {
 public:
  /// Shows no alternate calendar, weeks from Sunday on, eclipses, in the shared calendar theme; numbers in
  /// the locale of this moment.
  iPhoneCalendarView();

  /// For a host that makes views from a stored layout: the accessibility settings of a new view again.
  void awakeFromNib();

  /// The service's date when the view last drew or followed it.
  const std::optional<Instant>& selectedDate() const { return _selectedDate; }
  void setSelectedDate(std::optional<Instant> date) { _selectedDate = date; }

  /// Points by which a disc is narrower than its cell; 0 unless set.
  double padding() const { return _padding; }
  void setPadding(double padding);

  /// The weekday of the first column, 0 to 6: 0 is the first of `shortWeekdayStrings`, Sunday.
  std::int64_t weekStartDay() const { return _weekStartDay; }
  void setWeekStartDay(std::int64_t index);

  /// The calendar whose day numbers stand in brackets beside the Gregorian ones (see AlternateCalendarType).
  std::int64_t alternateCalendarType() const { return _alternateCalendarType; }
  void setAlternateCalendarType(std::int64_t type);

  /// The theme of this view alone; none for the shared calendar theme.
  const std::shared_ptr<VelmoraTheme>& colorTheme() const { return _colorTheme; }
  void setColorTheme(std::shared_ptr<VelmoraTheme> theme);
  /// The theme to draw with: the view's own, which becomes the shared calendar theme where there is none.
  const std::shared_ptr<VelmoraTheme>& calendarTheme();

  /// Whether no rings are drawn around the discs of days with an eclipse.
  /// Kept: the spelling.
  bool hideEclipeInfo() const { return _hideEclipeInfo; }
  void setHideEclipeInfo(bool isHidden);

  /// The elements as last made, or given by the host; given ones stand until the host empties them.
  const std::vector<AccessibilityElement>& axElements() const { return _axElements; }
  void setAxElements(std::vector<AccessibilityElement> elements);

  /// Whether the selected place lies south of the equator, so that discs are mirrored.
  bool isSouthernHemisphere() const;

  /// Follows the service to another date; nothing happens while its date is the view's. Called whenever
  /// "CalenderDateChanged" is posted.
  void followSelectedDate();

  /// Selects that day of the service's month, announces the date that is then selected and posts
  /// "CalenderDateChanged", after the service's own post if the date changed. Day 0 is the last day of the
  /// month before.
  void changeSelectedDay(std::int64_t day);

  void drawRect(Canvas& canvas, Rect rect) override;

  /// Draws the day's disc at the top of the rectangle, as wide as the rectangle without the padding, its
  /// outline and lit part in the canvas's own colours.
  void drawMoonPhaseInRect(Rect rect, const PhaseItem& withPhaseItem, Canvas& context);

  /// Strokes the circle that such a disc has.
  void strokeCircleIn(Rect rect, const Color& withColor, double lineWidth, Canvas& context) const;

  /// Draws the short weekday names side by side, each in the middle of a column of that width; the offset
  /// shifts them to the right.
  void drawWeekdaysHeaders(Canvas& context, Rect inRect, double columnWidth, double labelOffset);

  void touchesBegan(const Touch& touch) override;
  void touchesMoved(const Touch& touch) override;
  void touchesEnded(const Touch& touch) override;

  /// Kept: no, whatever is set, so that a screen reader stops at the days.
  bool isAccessibilityElement() const override { return false; }
  AccessibilityContainerType accessibilityContainerType() const override {
    return AccessibilityContainerType::semanticGroup;
  }
  /// `axElements`, made for what the view shows now unless the host has given them. The view needs a frame,
  /// but no drawing.
  std::vector<AccessibilityElement> accessibilityElements() override;
  /// Makes `axElements`: one element a day of the selected month, in day order.
  void setupAccessibility();
  /// Selects the day that the action of a day's element carries.
  /// Kept: it is the day before the element's.
  void accessibilityCellSelected(const AccessibilityCustomAction& action);

 protected:
  /// Speaks the date in the medium style, in language and zone of the first announcement.
  static void announce(Instant date);

  /// The elements of what the view shows now.
  virtual std::vector<AccessibilityElement> currentElements();

  /// For a drawing that decides on the padding itself: does not ask for another.
  void usePadding(double padding) { _padding = padding; }

  /// The geometry of the last drawing, which touches go by; all 0 before it.
  MonthGrid& grid() { return _grid; }
  const MonthGrid& grid() const { return _grid; }
  const NumberFormatter& numberFormatter() const { return _numberFormatter; }

  /// Whether the finger has left the cell that it came down on.
  bool touchCancelled() const { return _touchCancelled; }

 private:
  MonthGrid gridOfSelectedMonth() const;
  void drawHeader(Canvas& canvas);
  std::optional<std::int64_t> cellUnder(const Touch& touch) const;

  std::optional<Instant> _selectedDate;
  double _padding = 0;
  std::int64_t _weekStartDay = 0;
  std::int64_t _alternateCalendarType = kNoAlternateCalendar;
  std::shared_ptr<VelmoraTheme> _colorTheme;
  bool _hideEclipeInfo = false;
  std::vector<AccessibilityElement> _axElements;
  bool _hasGivenElements = false;
  MonthGrid _grid;
  std::optional<std::int64_t> _lastSelectedCell;
  bool _touchCancelled = false;
  NumberFormatter _numberFormatter;
  NumberFormatter _altNumberFormatter;
  NotificationCenter::Subscription _dateChanges, _placeChanges;
};

}  // namespace velmora
