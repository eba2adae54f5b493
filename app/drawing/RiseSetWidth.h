#pragma once

namespace velmora::app {

/// How wide a month's rows are drawn, in points.
struct RiseSetWidth {
  double rows;    ///< of the list
  double beside;  ///< room behind it, for the times of sunsets that reach beyond the end of the day
  int faults;     ///< how many times run over another, or into the column of the dates, even so
};

/// For the selected month: of the widths from a tablet's to the widest picture's the least at which the
/// fewest times run over something else. None is cut.
RiseSetWidth riseSetWidth();

}  // namespace velmora::app
