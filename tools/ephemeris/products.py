"""Plans how the arguments of all terms come from the angles by products of complex numbers.

A node is the complex number of unit length at a whole-number combination of the angles; combination and opposite
share one, for the one is the other's conjugate. A step takes two nodes a and b and makes two: a times b, at the sum
of their combinations, and a times b's conjugate, at the difference.

A combination is written as one whole number here, with a digit for each angle; the opposite is the negative number.
"""
DIGIT_BITS = (6, 6, 6, 6, 4, 7, 7, 6, 6, 5)
UNITS = tuple(1 << sum(DIGIT_BITS[:place]) for place in range(len(DIGIT_BITS)))
LARGEST = tuple((1 << bits - 1) - 1 for bits in DIGIT_BITS)


def number(combination):
    if any(abs(count) > largest for count, largest in zip(combination, LARGEST)):
        raise ValueError(f"no digit is that large: {combination}")
    return sum(count * unit for count, unit in zip(combination, UNITS))


class Plan:
    """The steps, pairs of places of nodes. The first nodes are the angles and then 1; each step's two follow."""

    def __init__(self, combinations):
        self.steps = []
        self.nodes = []         # combinations, by place
        self._places = {}       # by the absolute number
        self._reached = set()   # absolute numbers that one step makes
        self._missing = {abs(number(k)): k for k in sorted(combinations)}
        for angle in range(len(UNITS) + 1): self._own(tuple(int(angle == other) for other in range(len(UNITS))))
        while self._missing:
            if not any(self._take_best(wanted, 2) for wanted in self._wanted()):
                if not any([self._take_best(wanted, 0) for wanted in self._wanted()]): self._take_stepping_stone()

    def place(self, combination):
        """Where the combination's node lies, and 1, or −1 where it is the conjugate that lies there."""
        place = self._places[abs(number(combination))]
        return place, 1 if self.nodes[place] == tuple(combination) else -1

    def _wanted(self):
        return [value for value in sorted(self._missing) if value in self._reached]

    def _own(self, combination):
        value = abs(number(combination))
        if value not in self._places:
            self._places[value] = len(self.nodes)
            self._reached.update(abs(value + sign * other) for other in self._places for sign in (1, -1))
        self.nodes.append(combination)
        self._missing.pop(value, None)

    def _take(self, first, second):
        places = self._places[first], self._places[second]
        a, b = (self.nodes[place] for place in places)
        self.steps.append(places)
        self._own(tuple(x + y for x, y in zip(a, b)))
        self._own(tuple(x - y for x, y in zip(a, b)))

    def _take_best(self, wanted, least):
        """Makes a missing node if a step does whose other product has that merit: 2 missing too, 1 new, 0 none."""
        if wanted not in self._missing: return False
        best = None
        for first in self._places:
            for second, other in ((abs(wanted - first), abs(2 * first - wanted)), (wanted + first, 2 * first + wanted)):
                if second not in self._places: continue
                merit = 2 if other in self._missing and other != wanted else 1 if other not in self._places else 0
                if best is None or merit > best[0]: best = (merit, first, second)
        if best is None or best[0] < least: return False
        self._take(*best[1:])
        return True

    def _take_stepping_stone(self):
        """Makes the node from which, with those that are there, most of the missing ones can be made."""
        gains = {}
        for wanted in self._missing:
            for known in self._places:
                for stone in (abs(wanted - known), wanted + known):
                    if stone in self._reached: gains[stone] = gains.get(stone, 0) + 1
        if not gains: return self._take_step_nearer()
        stone = max(sorted(gains), key=gains.get)
        first = next(k for k in self._places if abs(stone - k) in self._places or stone + k in self._places)
        second = abs(stone - first) if abs(stone - first) in self._places else stone + first
        self._take(first, second)

    def _take_step_nearer(self):
        """Goes one angle from the node that is nearest to a missing one towards it."""
        def distance(pair):
            return sum(abs(x - sign * y) for x, y in zip(wanted, pair[0]) for sign in [pair[1]])

        wanted = self._missing[min(self._missing)]
        node, sign = min(((node, sign) for node in self.nodes for sign in (1, -1)), key=distance)
        angle = max(range(len(wanted)), key=lambda place: abs(wanted[place] - sign * node[place]))
        self._take(abs(number(node)), UNITS[angle])
