#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>
#include <velmora/platform/ui/AccessibilityElement.h>
#include <velmora/platform/ui/View.h>
#include <web/host/Session.h>

namespace velmora::web {

/// What the page chooses for one view.
struct ViewOptions {
  bool showsNewMoons = false;  ///< of the year: in place of full moons
  std::optional<Instant> at;   ///< of the views of a moment; none for noon of the selected day
  double heading = 0;          ///< of the compass: what is up, degrees
  bool isTilted = false;       ///< of the disc: as it is seen from the place
  bool hidesEclipses = false;  ///< of the month
};

/// An element of a view and the day that it stands for.
struct HostedElement {
  AccessibilityElement element;
  std::optional<Date> day;
};

/// A view on a canvas of the page: it makes the library's view for its size, passes it changes and touches,
/// and knows its elements.
class HostedView {
 public:
  virtual ~HostedView() = default;
  HostedView(const HostedView&) = delete;
  HostedView& operator=(const HostedView&) = delete;

  /// The view of that name; none for no such name.
  static std::unique_ptr<HostedView> named(std::string_view name);

  void resize(Size size, double scale);
  void setOptions(const ViewOptions& options);

  /// The size that it is drawn in; the height of a list is its own.
  Size size();
  bool needsDisplay() const;
  void render(Canvas& canvas);
  /// Into how many parts of the same height, one below the other, the view falls.
  std::size_t partCount();
  /// Whether the part looks otherwise than when it was drawn last.
  bool partNeedsDisplay(std::size_t number) const;
  /// Draws a part alone, its top left at the canvas's.
  void renderPart(Canvas& canvas, std::size_t number);
  virtual double scrollOffset() { return 0; }
  /// Files of pictures that it shows now, relative to the page's folder.
  virtual std::vector<std::string> pictures() { return {}; }

  /// Told after the selected day moved.
  void dayChanged();

  void touchBegan(Point point);
  void touchMoved(Point point);
  void touchEnded(Point point);
  void touchCancelled();

  /// In reading order, with frames on the canvas; the same of all days of a month.
  const std::vector<HostedElement>& elements();
  /// How often the elements have been made anew: as long as it stays, they do.
  std::int64_t editionOfElements();
  /// Does an action of an element last answered.
  void perform(std::size_t element, std::size_t action);

  /// What is painted below the view.
  virtual Color background() const;

 protected:
  HostedView() = default;

  const ViewOptions& options() const { return _options; }
  /// The moment that a view of a moment shows.
  Instant moment() const { return _options.at.value_or(Session::shared().noon()); }

  /// Puts the library's views into a screen of the given size.
  virtual void fill(View& screen) = 0;
  /// The height that the filled screen has in place of the given one.
  virtual std::optional<double> ownHeight() const { return std::nullopt; }
  /// Views within the filled screen that show all of it and change each by itself, from the top down; none
  /// where it is drawn as a whole.
  virtual std::vector<std::shared_ptr<View>> parts() const { return {}; }
  /// Whether the library's view is made anew for every drawing.
  virtual bool isDrawnOnce() const { return false; }
  /// Makes the filled screen follow the selected day; by default it is filled anew.
  virtual void followDay() { _screen.reset(); }
  /// The day of the element of that number.
  virtual std::optional<Date> dayOfElement(std::size_t) { return std::nullopt; }
  /// Whether a tap on an element with a day selects it, where the library's view takes no touches.
  virtual bool selectsByTap() const { return false; }

 private:
  View& screen();
  std::optional<Date> dayAt(Point point);

  Size _given;
  double _scale = 1;
  ViewOptions _options;
  std::int64_t _generation = -1;
  std::shared_ptr<View> _screen;
  std::weak_ptr<View> _touched;
  std::optional<Date> _tapped;
  std::vector<HostedElement> _elements;
  std::optional<std::chrono::year_month> _monthOfElements;  ///< none where they are to be made anew
  std::int64_t _editionOfElements = 0;
};

}  // namespace velmora::web
