#include <velmora/posters/Ribbons.h>

#include <algorithm>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// The width of a ribbon at a height, counted in rows.
struct Section {
  double y;
  Stretch stretch;
};
using Ribbon = std::vector<Section>;

bool overlap(const Stretch& a, const Stretch& b) { return a.from < b.to && b.from < a.to; }

Stretch middleOf(const Stretch& stretch) {
  const double middle = (stretch.from + stretch.to) / 2;
  return {middle, middle};
}

/// Down one side and up the other.
void addOutline(Path& path, const Ribbon& ribbon, Rect room, double rowHeight) {
  const auto at = [&](double share, double y) {
    return Point{room.x + share * room.width, room.y + y * rowHeight};
  };
  path.moveTo(at(ribbon.front().stretch.from, ribbon.front().y));
  for (auto section = ribbon.begin() + 1; section != ribbon.end(); ++section)
    path.lineTo(at(section->stretch.from, section->y));
  for (auto section = ribbon.rbegin(); section != ribbon.rend(); ++section)
    path.lineTo(at(section->stretch.to, section->y));
  path.close();
}

/// Grows ribbons row by row.
class RibbonMaking {
 public:
  void addRow(const std::vector<Stretch>& stretches, bool isStep) {
    const double edge = _row, middle = _row + 0.5;
    std::vector<Ribbon> open;
    for (Ribbon& ribbon : _open) {
      if (!isStep && onlyPartner(ribbon, stretches)) continue;
      const Stretch last = ribbon.back().stretch;
      const bool isBroken = isStep || countOver(last, stretches) > 0;
      ribbon.push_back({edge, isBroken ? last : middleOf(last)});
      _closed.push_back(ribbon);
    }
    for (const Stretch& stretch : stretches) {
      Ribbon* former = isStep ? nullptr : partnerOf(stretch, stretches);
      const bool isBroken = isStep || countOpenOver(stretch) > 0;
      open.push_back(former ? *former : Ribbon{{edge, isBroken ? stretch : middleOf(stretch)}});
      open.back().push_back({middle, stretch});
    }
    _open = std::move(open);
    _row += 1;
  }

  std::vector<Ribbon> ribbons() {
    for (Ribbon& ribbon : _open) ribbon.push_back({_row, ribbon.back().stretch});
    _closed.insert(_closed.end(), _open.begin(), _open.end());
    _open.clear();
    return _closed;
  }

 private:
  static std::ptrdiff_t countOver(const Stretch& one, const std::vector<Stretch>& others) {
    return std::count_if(others.begin(), others.end(),
                         [&](const Stretch& other) { return overlap(one, other); });
  }

  std::ptrdiff_t countOpenOver(const Stretch& stretch) const {
    return std::count_if(_open.begin(), _open.end(),
                         [&](const Ribbon& ribbon) { return overlap(stretch, lastOf(ribbon)); });
  }

  /// The stretch of the row before; a ribbon that has just ended has a section more.
  Stretch lastOf(const Ribbon& ribbon) const {
    return ribbon.back().y < _row ? ribbon.back().stretch : ribbon[ribbon.size() - 2].stretch;
  }

  /// Whether ribbon and stretch lie over each other and over nothing else.
  bool arePartners(const Ribbon& ribbon, const Stretch& stretch, const std::vector<Stretch>& all) const {
    const Stretch last = lastOf(ribbon);
    return overlap(last, stretch) && countOver(last, all) == 1 && countOpenOver(stretch) == 1;
  }

  bool onlyPartner(const Ribbon& ribbon, const std::vector<Stretch>& stretches) const {
    return std::any_of(stretches.begin(), stretches.end(),
                       [&](const Stretch& stretch) { return arePartners(ribbon, stretch, stretches); });
  }

  Ribbon* partnerOf(const Stretch& stretch, const std::vector<Stretch>& stretches) {
    const auto found = std::find_if(_open.begin(), _open.end(), [&](const Ribbon& ribbon) {
      return arePartners(ribbon, stretch, stretches);
    });
    return found == _open.end() ? nullptr : &*found;
  }

  double _row = 0;
  std::vector<Ribbon> _open, _closed;
};

/// Where along the row the value between two neighbours is zero.
double passageBetween(std::size_t first, double a, double b, std::size_t count) {
  return (static_cast<double>(first) + a / (a - b)) / static_cast<double>(count - 1);
}

}  // namespace

std::vector<Stretch> stretchesBelow(const std::vector<double>& values, double level) {
  std::vector<Stretch> stretches;
  double since = 0;
  for (std::size_t i = 0; i + 1 < values.size(); ++i) {
    const double a = values[i] - level, b = values[i + 1] - level;
    if ((a < 0) == (b < 0)) continue;
    const double at = passageBetween(i, a, b, values.size());
    if (b < 0)
      since = at;
    else
      stretches.push_back({since, at});
  }
  if (values.back() < level) stretches.push_back({since, 1});
  return stretches;
}

std::vector<Stretch> stretchesAbove(const std::vector<double>& values, double level) {
  std::vector<double> negative = values;
  for (double& value : negative) value = -value;
  return stretchesBelow(negative, -level);
}

std::vector<double> passages(const std::vector<double>& values, bool upward) {
  std::vector<double> places;
  for (std::size_t i = 0; i + 1 < values.size(); ++i) {
    const double a = values[i], b = values[i + 1];
    if (upward ? a < 0 && b >= 0 : a >= 0 && b < 0) places.push_back(passageBetween(i, a, b, values.size()));
  }
  return places;
}

Path ribbonsOf(const Rows<Stretch>& rows, Rect room) {
  RibbonMaking making;
  for (std::size_t i = 0; i < rows.rows.size(); ++i) making.addRow(rows.rows[i], i == 0 || rows.isStep[i]);
  Path path;
  const double rowHeight = room.height / static_cast<double>(rows.rows.size());
  for (const Ribbon& ribbon : making.ribbons()) addOutline(path, ribbon, room, rowHeight);
  return path;
}

Path linesOf(const Rows<double>& rows, Rect room, double farthest) {
  Path path;
  const double rowHeight = room.height / static_cast<double>(rows.rows.size());
  const auto at = [&](double share, std::size_t row) {
    return Point{room.x + share * room.width, room.y + (static_cast<double>(row) + 0.5) * rowHeight};
  };
  for (std::size_t i = 0; i + 1 < rows.rows.size(); ++i) {
    if (rows.isStep[i + 1]) continue;
    for (const double from : rows.rows[i]) {
      for (const double to : rows.rows[i + 1]) {
        if (std::abs(to - from) > farthest) continue;
        path.moveTo(at(from, i));
        path.lineTo(at(to, i + 1));
      }
    }
  }
  return path;
}

}  // namespace velmora
