#pragma once

#include <string>

#include <velmora/platform/time/Instant.h>

namespace velmora::shipped {

/// Gathers how far instants lie from those of another source.
class Differences {
 public:
  void add(Seconds difference, const std::string& source);

  Seconds largest() const { return _largest; }

  /// Count, root mean square and largest difference, with the line that has it.
  std::string summary() const;

 private:
  int _count = 0;
  double _sumOfSquares = 0;
  Seconds _largest{0};
  std::string _source;
};

}  // namespace velmora::shipped
