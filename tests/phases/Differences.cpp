#include "Differences.h"

#include <cmath>
#include <iomanip>
#include <sstream>

namespace velmora::shipped {

void Differences::add(Seconds difference, const std::string& source) {
  ++_count;
  _sumOfSquares += difference.count() * difference.count();
  if (std::abs(difference.count()) < _largest.count()) return;
  _largest = Seconds(std::abs(difference.count()));
  _source = source;
}

std::string Differences::summary() const {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1) << _count << " instants, RMS "
       << std::sqrt(_sumOfSquares / _count) << " s, largest " << _largest.count() << " s (" << _source << ")";
  return text.str();
}

}  // namespace velmora::shipped
