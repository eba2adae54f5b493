"""Writes a series as a table in C++, in the form that velmora/ephemeris/SeriesTables.h describes."""
import math
import textwrap

from products import Plan

LARGE = 100_000     # units; a larger term of the Moon's and the Sun's angles is computed in double precision
LARGE_ANGLES = 4    # l, l', F and D
WIDTH = 110
HEADER = """\
// Made by tools/make-data: do not edit.

#include <velmora/ephemeris/SeriesTables.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {
"""
FOOTER = """
}  // namespace ephemeris
}  // namespace velmora
"""


class Coordinate:
    """Polynomial and terms of a coordinate, rounded to a unit. Its simple terms are cosines alone or sines alone."""

    def __init__(self, unit, is_of_cosines, polynomial, terms, pairs):
        self.unit, self.is_of_cosines = unit, is_of_cosines
        self.polynomial = [round(coefficient / unit, 3) for coefficient in polynomial]
        self.terms = [(term, round(cosine / unit), round(sine / unit)) for term, (cosine, sine) in zip(terms, pairs)]

    def groups(self, is_large, power, inner_angles):
        """The terms that are computed so and have that power of T: outer part, inner part, (c, s) of sum, difference."""
        groups = {}
        for term, cosine, sine in self.terms:
            if term.power != power or _is_large(term, cosine, sine) != is_large: continue
            outer, inner, place, sign = _split(term.combination, inner_angles)
            two = groups.setdefault(outer, {}).setdefault(inner, [(0, 0), (0, 0)])
            two[place] = (cosine, sign * sine)
        return groups


def _is_large(term, cosine, sine):
    return term.power == 0 and math.hypot(cosine, sine) > LARGE and not any(term.combination[LARGE_ANGLES:])


def _opposite(combination):
    return tuple(-count for count in combination)


def _leads(combination):
    """Whether it stands for itself and its opposite."""
    return next((count for count in combination if count), 1) > 0


def _split(combination, inner_angles):
    """Outer and inner part, 0 if the argument is their sum, 1 if their difference; −1 if it is turned for that."""
    inner = tuple(count if angle in inner_angles else 0 for angle, count in enumerate(combination))
    outer = tuple(count - part for count, part in zip(combination, inner))
    sign = 1
    if not (_leads(outer) if any(outer) else _leads(inner)):
        outer, inner, sign = _opposite(outer), _opposite(inner), -1
    return (outer, inner, 0, sign) if _leads(inner) else (outer, _opposite(inner), 1, sign)


class _Pair:
    """Factors of the products of the cosines and sines, written re and im, of an outer and an inner part."""

    def __init__(self, plan, outer, inner, two):
        (c1, s1), (c2, s2) = two
        outer_sign, (self.node, inner_sign) = plan.place(outer)[1], plan.place(inner)
        self.re_re, self.im_im = c1 + c2, outer_sign * inner_sign * (c2 - c1)
        self.re_im, self.im_re = inner_sign * (s1 - s2), outer_sign * (s1 + s2)
        if not any(inner): self.im_im = self.re_im = 0
        if not any(outer): self.im_im = self.im_re = 0

    def is_pure(self, is_of_cosines):
        return not (self.re_im or self.im_re) if is_of_cosines else not (self.re_re or self.im_im)

    def entry(self, is_pure, is_of_cosines):
        """All factors, or those of the inner part's re and im that are not 0."""
        if not is_pure: return f"{{{self.re_re}, {self.re_im}, {self.im_re}, {self.im_im}, {self.node}}}"
        of_re, of_im = (self.re_re, self.im_im) if is_of_cosines else (self.im_re, self.re_im)
        return f"{{{of_re}, {of_im}, {self.node}}}"


def _array(kind, name, entries):
    # A blank would let a line break in the middle of an entry.
    text = textwrap.fill(", ".join(entry.replace(" ", "~") for entry in entries), WIDTH, initial_indent="    ",
                         subsequent_indent="    ", break_long_words=False, break_on_hyphens=False)
    return f"\nconstexpr std::array<{kind}, {len(entries)}> {name} = {{{{\n{text.replace('~', ' ')}}}}};\n"


class _Writer:
    def __init__(self, inner_angles):
        self.inner_angles = inner_angles
        self.arrays, self.sums, self.node_count = "", {True: [], False: []}, 0

    def add(self, coordinates, is_large):
        """The sums that are computed in that precision."""
        groups = [(index, power, coordinate.groups(is_large, power, self.inner_angles))
                  for index, coordinate in enumerate(coordinates) for power in (0, 1)]
        plan = Plan({part for _, _, outers in groups for outer, inners in outers.items() for part in (outer, *inners)})
        self.node_count = max(self.node_count, len(plan.nodes))
        prefix = "large" if is_large else "small"
        products = self._named("Product", f"{prefix}Products", [f"{{{a}, {b}}}" for a, b in plan.steps])
        for index, power, outers in groups:
            if outers: self._add_sum(f"{prefix}{index}{'T' * power}", is_large, coordinates[index], index, power, outers, plan)
        return products

    def _add_sum(self, name, is_large, coordinate, index, power, outers, plan):
        real = "double" if is_large else "float"
        split = []
        for outer, inners in outers.items():
            pairs = [_Pair(plan, outer, inner, two) for inner, two in inners.items()]
            is_pure = [pair.is_pure(coordinate.is_of_cosines) for pair in pairs]
            split.append((plan.place(outer)[0], [p for p, pure in zip(pairs, is_pure) if not pure],
                          [p for p, pure in zip(pairs, is_pure) if pure]))
        # Alike lengths in a row, so that a processor foresees the ends of the loops.
        split.sort(key=lambda group: (-len(group[1]), -len(group[2])))
        groups = self._named("Group", f"{name}Groups", [f"{{{node}, {len(m)}, {len(p)}}}" for node, m, p in split])
        mixed = self._named(f"MixedPair<{real}>", f"{name}Mixed",
                            [pair.entry(False, coordinate.is_of_cosines) for _, m, _ in split for pair in m])
        pure = self._named(f"PurePair<{real}>", f"{name}Pure",
                           [pair.entry(True, coordinate.is_of_cosines) for _, _, p in split for pair in p])
        flags = f"{index}, {str(bool(power)).lower()}, {str(coordinate.is_of_cosines).lower()}"
        self.sums[is_large].append(f"{{{flags}, {groups}, {mixed}, {pure}}}")

    def _named(self, kind, name, entries):
        if not entries: return "{}"
        self.arrays += _array(kind, name, entries)
        return name


def series(name, inner_angles, coordinates):
    """The table of a series of that name, as a text in C++.

    The part of these angles in an argument is its inner part, the rest its outer part.
    """
    writer = _Writer(inner_angles)
    products = {is_large: writer.add(coordinates, is_large) for is_large in (True, False)}
    members = []
    for is_large, prefix, real in ((True, "large", "double"), (False, "small", "float")):
        sums = writer.sums[is_large]
        if sums:
            lines = ",\n    ".join(sums)
            writer.arrays += f"\nconstexpr std::array<Sum<{real}>, {len(sums)}> {prefix}Sums = {{{{\n    {lines}}}}};\n"
        members.append(f"{{{products[is_large]}, {f'{prefix}Sums' if sums else '{}'}}}")
    polynomials = ",\n      ".join(f"{{{', '.join(map(repr, coordinate.polynomial))}}}" for coordinate in coordinates)
    return (f"{HEADER}namespace {{\n\nstatic_assert({writer.node_count} <= mostNodes);\n{writer.arrays}\n"
            f"}}  // namespace\n\nconst Series {name} = {{\n    {members[0]},\n    {members[1]},\n"
            f"    {{{{{polynomials}}}}}}};\n{FOOTER}")


def angles(turns):
    """The angles of which the terms' arguments are combinations."""
    lines = ",\n    ".join(f"{{{', '.join(repr(float(c)) for c in row)}}}" for row in turns)
    return f"{HEADER}\nconst std::array<Polynomial, angleCount> anglePolynomials = {{{{\n    {lines}}}}};\n{FOOTER}"
