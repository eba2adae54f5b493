#pragma once

#include <string_view>
#include <vector>

namespace velmora::app {

/// A view that the program draws, as the help and the command line know it.
struct DrawableView {
  std::string_view name;
  std::string_view summary;
  std::vector<std::string_view> options = {};  ///< of those that only some views take
  std::string_view titleFields =
      "";                    ///< of the date in the title, as DateFormatter's templates; none: no title
  double freeTop = 0;        ///< points that the view itself leaves free for a title
  bool needsTables = false;  ///< whether it draws phases, which are known for the tables' years alone
};

/// Every view, in the order of the help.
const std::vector<DrawableView>& allViews();

/// The view of that name; none if there is no such view.
const DrawableView* findView(std::string_view name);

/// "disc, month, …".
std::string_view viewNames();

}  // namespace velmora::app
