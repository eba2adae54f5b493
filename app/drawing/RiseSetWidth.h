#pragma once

namespace velmora::app {

/// How wide a month's rows are drawn, in points.
struct RiseSetWidth {
  double rows;    ///< of the list
  double beside;  ///< room behind it, for the times of sunsets that reach beyond the end of the day
  int faults;     ///< how many times run over another, or into the column of the dates, even so
};

/// For the selected month. Of the widths between a tablet's and the widest picture's it is the least at which
/// as few times as possible run over something else. No time is cut.
RiseSetWidth riseSetWidth();

}  // namespace velmora::app
