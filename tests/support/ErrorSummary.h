#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <string>

namespace velmora::testing {

/// Collects differences from a published table; a failing one names its row, a summary is printed at the end.
class ErrorSummary {
 public:
  ErrorSummary(std::string name, const char* unit, double limit)
      : _name(std::move(name)), _unit(unit), _limit(limit) {}

  void add(double error, const std::string& where) {
    EXPECT_LE(std::abs(error), _limit) << _name << ", " << where;
    ++_count;
    _sumOfSquares += error * error;
    _largest = std::max(_largest, std::abs(error));
  }

  double rms() const { return std::sqrt(_sumOfSquares / _count); }
  double largest() const { return _largest; }
  int count() const { return _count; }

  void print() const {
    std::cout << "  " << _name << ": " << _count << " compared, RMS " << rms() << _unit << ", maximum "
              << _largest << _unit << "\n";
  }

 private:
  std::string _name;
  const char* _unit;
  double _limit;
  int _count = 0;
  double _sumOfSquares = 0, _largest = 0;
};

}  // namespace velmora::testing
