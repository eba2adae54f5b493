#include <velmora/platform/graphics/canvas2d/Squares.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

std::size_t squaresIn(double pixels) {
  return static_cast<std::size_t>(std::max(std::ceil(pixels / Squares::side), 1.0));
}

}  // namespace

void Fingerprint::add(double number) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  add(bits);
}

void Fingerprint::add(std::uint64_t bits) {
  constexpr std::uint64_t prime = 0x100000001b3;
  for (int shift = 0; shift < 64; shift += 8) _value = (_value ^ (bits >> shift & 0xff)) * prime;
}

void Fingerprint::add(const double* numbers, std::size_t count) {
  std::for_each_n(numbers, count, [this](double number) { add(number); });
}

Squares::Squares(Size pixels)
    : _across(squaresIn(pixels.width)), _down(squaresIn(pixels.height)), _squares(_across * _down) {}

void Squares::add(const Rect& pixels, std::uint64_t what) {
  if (pixels.isEmpty()) return;
  const auto first = [](double least) { return static_cast<std::size_t>(std::max(least / side, 0.0)); };
  const std::size_t right = std::min(squaresIn(pixels.maxX()), _across);
  const std::size_t bottom = std::min(squaresIn(pixels.maxY()), _down);
  for (std::size_t y = first(pixels.minY()); y < bottom; ++y) {
    for (std::size_t x = first(pixels.minX()); x < right; ++x) {
      _squares[y * _across + x].add(what);
    }
  }
}

std::vector<double> Squares::numbers() const {
  constexpr int bitsBeyondDouble = 11;
  std::vector<double> numbers;
  for (const Fingerprint& square : _squares) {
    numbers.push_back(static_cast<double>(square.value() >> bitsBeyondDouble));
  }
  return numbers;
}

}  // namespace velmora
