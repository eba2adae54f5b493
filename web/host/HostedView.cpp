#include <web/host/HostedView.h>

#include <algorithm>
#include <map>
#include <utility>

#include <velmora/platform/ui/Device.h>
#include <velmora/views/OncePerProcess.h>
#include <web/host/Calendars.h>
#include <web/host/Colors.h>
#include <web/host/Posters.h>
#include <web/host/SkyViews.h>

namespace velmora::web {
namespace {

/// Says which screen the views are drawn for. What they keep for the process depends on whether it is narrow.
void useScreen(double width, double scale) {
  constexpr double narrowWidth = 320;
  const bool wasNarrow = Device::current().screenWidth <= narrowWidth;
  if (wasNarrow != (width <= narrowWidth)) ProcessValues::resetAll();
  Device::setCurrent({.screenWidth = width, .screenScale = scale});
}

std::vector<AccessibilityElement> elementsOf(View& view) {
  std::vector<AccessibilityElement> found = view.accessibilityElements();
  for (AccessibilityElement& element : found) {
    for (const View* holder = &view; holder != nullptr; holder = holder->superview()) {
      element.frame = holder->convertToSuperview(element.frame);
    }
  }
  for (const auto& subview : view.subviews()) {
    const auto below = elementsOf(*subview);
    found.insert(found.end(), below.begin(), below.end());
  }
  return found;
}

}  // namespace

std::unique_ptr<HostedView> HostedView::named(std::string_view name) {
  static const std::map<std::string_view, std::unique_ptr<HostedView> (*)()> makers = {
      {"month", makeMonth},     {"year", makeYear},   {"riseset", makeRiseSet},   {"pictures", makePictures},
      {"compass", makeCompass}, {"arc", makeArc},     {"disc", makeDisc},         {"timeline", makeTimeline},
      {"chart", makeChart},     {"night", makeNight}, {"darkness", makeDarkness}, {"poster", makePoster}};
  const auto found = makers.find(name);
  return found == makers.end() ? nullptr : found->second();
}

void HostedView::resize(Size size, double scale) {
  if (size == _given && scale == _scale) return;
  _given = size;
  _scale = scale;
  _screen.reset();
}

void HostedView::setOptions(const ViewOptions& options) {
  _options = options;
  _screen.reset();
}

View& HostedView::screen() {
  const std::int64_t generation = Session::shared().generation();
  if (_screen && _generation == generation) return *_screen;
  useScreen(_given.width, _scale);
  _generation = generation;
  _monthOfElements.reset();
  _screen = std::make_shared<View>();
  _screen->setFrame({0, 0, _given.width, _given.height});
  fill(*_screen);
  if (const auto height = ownHeight()) _screen->setFrame({0, 0, _given.width, *height});
  return *_screen;
}

Size HostedView::size() { return screen().bounds().size(); }

bool HostedView::needsDisplay() const {
  if (!_screen || _generation != Session::shared().generation()) return true;
  const auto rows = parts();
  return rows.empty()
             ? _screen->needsDisplay()
             : std::any_of(rows.begin(), rows.end(), [](const auto& row) { return row->needsDisplay(); });
}

void HostedView::render(Canvas& canvas) {
  if (isDrawnOnce()) _screen.reset();
  View& view = screen();
  useScreen(_given.width, _scale);
  view.render(canvas);
}

std::size_t HostedView::partCount() {
  screen();
  return std::max<std::size_t>(parts().size(), 1);
}

bool HostedView::partNeedsDisplay(std::size_t number) const {
  if (!_screen || _generation != Session::shared().generation()) return true;
  const auto rows = parts();
  return rows.empty() ? _screen->needsDisplay() : rows.at(number)->needsDisplay();
}

void HostedView::renderPart(Canvas& canvas, std::size_t number) {
  View& whole = screen();
  const auto rows = parts();
  if (rows.empty()) return render(canvas);
  useScreen(_given.width, _scale);
  whole.layoutSubviews();
  const std::shared_ptr<View>& row = rows.at(number);
  canvas.translate(0, -row->frame().y);
  row->render(canvas);
}

void HostedView::dayChanged() {
  if (_screen && _generation == Session::shared().generation()) followDay();
}

Color HostedView::background() const { return backgroundOfPage(); }

void HostedView::touchBegan(Point point) {
  const auto touched = screen().hitTest(point);
  _touched = touched;
  _tapped = dayAt(point);
  if (touched) touched->touchesBegan(Touch(point));
}

void HostedView::touchMoved(Point point) {
  if (const auto touched = _touched.lock()) touched->touchesMoved(Touch(point));
}

void HostedView::touchEnded(Point point) {
  const auto tapped = std::exchange(_tapped, std::nullopt);
  const auto touched = _touched.lock();
  _touched.reset();
  if (touched) touched->touchesEnded(Touch(point));
  if (tapped && tapped == dayAt(point)) Session::shared().selectDay(*tapped);
}

void HostedView::touchCancelled() {
  const auto touched = _touched.lock();
  _touched.reset();
  _tapped.reset();
  if (touched) touched->touchesCancelled(Touch({}));
}

std::optional<Date> HostedView::dayAt(Point point) {
  if (!selectsByTap()) return std::nullopt;
  for (const HostedElement& hosted : elements()) {
    if (hosted.element.frame.contains(point)) return hosted.day;
  }
  return std::nullopt;
}

const std::vector<HostedElement>& HostedView::elements() {
  View& view = screen();
  const Date day = Session::shared().day();
  const auto month = day.year() / day.month();
  if (_monthOfElements == month) return _elements;
  _monthOfElements = month;
  ++_editionOfElements;
  view.layoutSubviews();
  _elements.clear();
  for (AccessibilityElement& element : elementsOf(view)) {
    const auto itsDay = dayOfElement(_elements.size());
    _elements.push_back({std::move(element), itsDay});
  }
  return _elements;
}

std::int64_t HostedView::editionOfElements() {
  elements();
  return _editionOfElements;
}

void HostedView::perform(std::size_t element, std::size_t action) {
  if (element >= _elements.size()) return;
  const HostedElement hosted = _elements[element];
  if (action >= hosted.element.customActions.size()) return;
  // The month's own action selects the day before the element's.
  if (hosted.day) {
    Session::shared().selectDay(*hosted.day);
  } else {
    hosted.element.customActions[action]->activate();
  }
}

}  // namespace velmora::web
