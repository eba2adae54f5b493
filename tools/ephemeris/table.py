"""Writes a series as a table in C++."""
import math
import textwrap

from products import Plan

LARGE = 100_000       # units; a larger term is computed in double precision
TERMS_TOGETHER = 4    # the evaluation takes them four at a time
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
    """Polynomial and terms of a coordinate, rounded to a unit."""

    def __init__(self, name, unit, polynomial, terms, pairs):
        self.name, self.unit = name, unit
        self.polynomial = polynomial
        rounded = [(term, round(cosine / unit), round(sine / unit)) for term, (cosine, sine) in zip(terms, pairs)]
        self.terms = [entry for entry in rounded if entry[1] or entry[2]]

    def part(self, is_large, power):
        """Combination, cosine and sine of the terms that are computed so and have that power of T."""
        return [(term.combination, cosine, sine) for term, cosine, sine in self.terms
                if term.power == power and (power == 0 and math.hypot(cosine, sine) > LARGE) == is_large]


def _wrapped(entries):
    return textwrap.fill(", ".join(entries), WIDTH, initial_indent="    ", subsequent_indent="    ",
                         break_long_words=False, break_on_hyphens=False)


def _array(kind, name, entries):
    # A blank would let a line break in the middle of an entry.
    lines = _wrapped([entry.replace(" ", "~") for entry in entries]).replace("~", " ")
    return f"\nconstexpr std::array<{kind}, {len(entries)}> {name} = {{{{\n{lines}}}}};\n"


def _sum(name, coordinates, is_large):
    """The arrays of one precision, and the text that names them."""
    parts = [(f"{name}{coordinate.name}{'TimesT' * power}", coordinate.part(is_large, power))
             for coordinate in coordinates for power in (0, 1)]
    plan = Plan({combination for _, terms in parts for combination, _, _ in terms})
    text = _array("Product", f"{name}Products", [f"{{{a}, {b}}}" for a, b in plan.steps]) if plan.steps else ""
    members = []
    for array, terms in parts:
        if not terms:
            members.append("{}")
            continue
        entries = []
        for combination, cosine, sine in terms:
            place, sign = plan.place(combination)
            entries.append(f"{{{cosine}, {sign * sine}, {place}}}")
        entries += ["{0, 0, 0}"] * (-len(entries) % TERMS_TOGETHER)
        text += _array(f"Term<{'double' if is_large else 'float'}>", array, entries)
        members.append(array)
    products = f"{name}Products" if plan.steps else "{}"
    return text, f"{{{products}, {{{{{', '.join(members)}}}}}}}", len(plan.nodes)


def series(name, coordinates):
    """The table of a series of that name, as a text in C++."""
    large, large_members, large_nodes = _sum("large", coordinates, True)
    small, small_members, small_nodes = _sum("small", coordinates, False)
    polynomials = "},\n     {".join(", ".join(repr(round(c / coordinate.unit, 3)) for c in coordinate.polynomial)
                                   for coordinate in coordinates)
    text = f"{HEADER}namespace {{\n{large}{small}\n}}  // namespace\n"
    text += f"\nstatic_assert({max(large_nodes, small_nodes)} <= mostNodes);\n"
    text += (f"\nconst Series {name} = {{\n    {large_members},\n    {small_members},\n"
             f"    {{{{{{{polynomials}}}}}}}}};\n")
    return text + FOOTER


def angles(turns):
    """The angles of which the terms' arguments are combinations."""
    rows = [f"{{{', '.join(repr(float(c)) for c in row)}}}" for row in turns]
    lines = ",\n    ".join(rows)
    return f"{HEADER}\nconst std::array<Polynomial, angleCount> anglePolynomials = {{{{\n    {lines}}}}};\n{FOOTER}"
