#pragma once

#include <memory>
#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <app/request/DrawableView.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

/// How a drawable view comes to be, once the service has selected place and day.
struct ViewMaking {
  /// Width and height in points, where the request does not give the picture's.
  Size (*usualSize)(const Query&);
  /// The view, filling the size.
  std::shared_ptr<View> (*make)(const Query&, Size);
  /// The views of a PDF's pages, each filling the size; none for what is one picture everywhere.
  std::vector<std::shared_ptr<View>> (*makePages)(const Query&, Size) = nullptr;
  /// Throws a Failure where what it shows beside phases cannot be read; none for what shows nothing else.
  void (*checkResources)(const Query&) = nullptr;
  /// What stands behind the place in the title; none for most.
  std::string (*note)(const Query&) = nullptr;
};

const ViewMaking& makingOf(const DrawableView& view);

}  // namespace velmora::app
