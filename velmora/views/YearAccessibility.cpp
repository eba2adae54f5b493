#include <algorithm>
#include <tuple>

#include <velmora/views/LocalizedText.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/SpokenTexts.h>

namespace velmora {
namespace {

/// The smallest rectangle that holds both.
Rect around(Rect disc, Rect label) {
  const double x = std::min(disc.x, label.x), y = std::min(disc.y, label.y);
  return {x, y, std::max(disc.maxX(), label.maxX()) - x, std::max(disc.maxY(), label.maxY()) - y};
}

}  // namespace

std::vector<AccessibilityElement> MoonPhaseYearView::currentElements() {
  std::vector<ShownEvent> events = shownEvents();
  const auto moment = [](const ShownEvent& event) {
    return std::tuple(event.item->year, event.item->month, event.item->day);
  };
  std::sort(events.begin(), events.end(),
            [&](const ShownEvent& a, const ShownEvent& b) { return moment(a) < moment(b); });
  const SpokenDays days;
  std::vector<AccessibilityElement> elements;
  for (const ShownEvent& event : events) {
    const auto select = [weakView = weak_from_this(), item = event.item](const AccessibilityCustomAction&) {
      const auto view = std::static_pointer_cast<MoonPhaseYearView>(weakView.lock());
      if (view) view->changeSelectedItem(item);
    };
    elements.push_back(
        {.frame = around(event.disc, event.label),
         .label = days.dateAndPhase(*event.item),
         .hint = localizedText("Tap to select date"),
         .traits = AccessibilityTraits::button,
         .customActions = {std::make_shared<AccessibilityCustomAction>(localizedText("Select"), select)}});
  }
  return elements;
}

}  // namespace velmora
