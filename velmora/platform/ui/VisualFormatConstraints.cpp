#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/platform/ui/View.h>
#include <velmora/platform/ui/VisualFormat.h>

namespace velmora {
namespace {

using Views = std::map<std::string, View*, std::less<>>;

// The views by their names, in the order of the names; none if one of them is not given.
std::vector<View*> viewsNamed(const std::vector<std::string>& names, const Views& views) {
  std::vector<View*> named;
  for (const auto& name : names) {
    const auto found = views.find(name);
    if (found == views.end() || found->second == nullptr) return {};
    named.push_back(found->second);
  }
  return named;
}

std::shared_ptr<LayoutConstraint> equality(View& first, LayoutAttribute firstAttribute, View& second,
                                           LayoutAttribute secondAttribute, double constant) {
  return std::make_shared<LayoutConstraint>(first, firstAttribute, LayoutRelation::equal, &second,
                                            secondAttribute, 1, constant);
}

// From edge to edge along the format's direction. The container is there if the format pins to it.
LayoutConstraint::List chain(const VisualFormat& format, const std::vector<View*>& views, View* container) {
  const auto start = format.isVertical ? LayoutAttribute::top : LayoutAttribute::leading;
  const auto end = format.isVertical ? LayoutAttribute::bottom : LayoutAttribute::trailing;
  LayoutConstraint::List list;
  if (format.leadingPin)
    list.push_back(equality(*views.front(), start, *container, start, *format.leadingPin));
  for (std::size_t i = 1; i < views.size(); ++i) {
    list.push_back(equality(*views[i], start, *views[i - 1], end, format.gaps[i - 1]));
  }
  if (format.trailingPin) list.push_back(equality(*container, end, *views.back(), end, *format.trailingPin));
  return list;
}

void alignTops(const std::vector<View*>& views, LayoutConstraint::List& list) {
  for (std::size_t i = 1; i < views.size(); ++i) {
    list.push_back(equality(*views[i], LayoutAttribute::top, *views.front(), LayoutAttribute::top, 0));
  }
}

}  // namespace

LayoutConstraint::List LayoutConstraint::constraintsWithVisualFormat(std::string_view format,
                                                                     LayoutFormatOptions options,
                                                                     const Views& views) {
  const auto parsed = VisualFormat::parse(format);
  if (!parsed) return {};
  const auto named = viewsNamed(parsed->views, views);
  if (named.empty()) return {};
  View* container = named.front()->superview();
  if ((parsed->leadingPin || parsed->trailingPin) && container == nullptr) return {};

  List list = chain(*parsed, named, container);
  if (options == LayoutFormatOptions::alignAllTop && !parsed->isVertical) alignTops(named, list);
  return list;
}

}  // namespace velmora
