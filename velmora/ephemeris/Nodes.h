#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <span>

#include <velmora/ephemeris/SeriesTables.h>
#include <velmora/ephemeris/Sines.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

/// The nodes of a part of a series at a time, and what its sums come to with them; not for other folders.
template <class Number>
class Nodes {
 public:
  template <std::size_t angles>
  Nodes(const std::array<Complex<Number>, angles>& ofAngles, std::span<const Product> products) {
    for (std::size_t i = 0; i < angles; ++i) _nodes[i] = {ofAngles[i].re, ofAngles[i].im};
    Complex<Number>* next = _nodes.data() + angleCount;
    *next++ = {Number{} + 1.0F, Number{}};
    for (const Product& product : products) {
      const Complex<Number>&a = _nodes[product.first], &b = _nodes[product.second];
      const Number rr = a.re * b.re, ii = a.im * b.im, ir = a.im * b.re, ri = a.re * b.im;
      *next++ = {rr - ii, ir + ri};
      *next++ = {rr + ii, ir - ri};
    }
  }

  template <class Real>
  Number total(const Sum<Real>& sum) const {
    return sum.isOfCosines ? totalOf<true>(sum) : totalOf<false>(sum);
  }

 private:
  template <bool isOfCosines, class Real>
  Number totalOf(const Sum<Real>& sum) const {
    const MixedPair<Real>* mixed = sum.mixed.data();
    const PurePair<Real>* pure = sum.pure.data();
    Number re{}, im{};
    for (const Group& group : sum.groups) {
      Number reRe{}, reIm{}, imRe{}, imIm{}, pureRe{}, pureIm{};
      for (int left = group.mixedCount; left > 0; --left, ++mixed) {
        const Complex<Number>& b = _nodes[mixed->inner];
        reRe = reRe + b.re * mixed->reRe;
        reIm = reIm + b.im * mixed->reIm;
        imRe = imRe + b.re * mixed->imRe;
        imIm = imIm + b.im * mixed->imIm;
      }
      for (int left = group.pureCount; left > 0; --left, ++pure) {
        const Complex<Number>& b = _nodes[pure->inner];
        pureRe = pureRe + b.re * pure->re;
        pureIm = pureIm + b.im * pure->im;
      }
      const Complex<Number>& a = _nodes[group.outer];
      if constexpr (isOfCosines) {
        re = re + a.re * (reRe + reIm + pureRe);
        im = im + a.im * (imRe + imIm + pureIm);
      } else {
        re = re + a.re * (reRe + reIm + pureIm);
        im = im + a.im * (imRe + imIm + pureRe);
      }
    }
    return re + im;
  }

  std::array<Complex<Number>, mostNodes> _nodes;
};

/// Of one time: what is done above number by number is done by four at once, with the same bits.
template <>
template <bool isOfCosines, class Real>
float Nodes<float>::totalOf(const Sum<Real>& sum) const {
  using Four [[gnu::vector_size(16)]] = float;
  const auto two = [](const auto* numbers) {  // and zeros
    double both;
    std::memcpy(&both, numbers, sizeof both);
    using TwoDoubles [[gnu::vector_size(16)]] = double;
    return reinterpret_cast<Four>(TwoDoubles{both, 0});
  };
  const auto swapped = [](const Four& x) { return __builtin_shufflevector(x, x, 1, 0, 3, 2); };
  const MixedPair<Real>* mixed = sum.mixed.data();
  const PurePair<Real>* pure = sum.pure.data();
  Four reAndIm{};
  for (const Group& group : sum.groups) {
    Four ofMixed{}, ofPure{};
    for (int left = group.mixedCount; left > 0; --left, ++mixed) {
      const Four b = two(&_nodes[mixed->inner]);
      ofMixed += __builtin_shufflevector(b, b, 0, 1, 0, 1) *
                 Four{mixed->reRe, mixed->reIm, mixed->imRe, mixed->imIm};
    }
    for (int left = group.pureCount; left > 0; --left, ++pure)
      ofPure += two(&_nodes[pure->inner]) * two(&pure->re);
    const Four ofBoth = __builtin_shufflevector(ofMixed, ofMixed, 0, 2, 0, 2) +
                        __builtin_shufflevector(ofMixed, ofMixed, 1, 3, 1, 3);
    reAndIm += two(&_nodes[group.outer]) * (ofBoth + (isOfCosines ? ofPure : swapped(ofPure)));
  }
  return reAndIm[0] + reAndIm[1];
}

}  // namespace ephemeris
}  // namespace velmora
