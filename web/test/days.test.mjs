import assert from "node:assert/strict";
import { test } from "node:test";
import fc from "fast-check";
import { source } from "./source.mjs";

const { addDays, addMonths, dayOfText, dayText, daysIn, isDay, nearestKnown, weekdayOf } = await source("days");
const { clockAt, instantOf } = await source("format");

const day = fc.record({ year: fc.integer({ min: 2000, max: 2040 }), month: fc.integer({ min: 1, max: 12 }), day: fc.integer({ min: 1, max: 28 }) }, { noNullPrototype: true });

test("AMonthHasItsDays", () => {
  assert.equal(daysIn(2024, 2), 29);
  assert.equal(daysIn(2100, 2), 28);
  assert.equal(daysIn(2000, 2), 29);
});

test("TheLastOfAMonthStaysWithinAShorterOne", () => {
  assert.deepEqual(addMonths({ year: 2024, month: 1, day: 31 }, 1), { year: 2024, month: 2, day: 29 });
  assert.deepEqual(addMonths({ year: 2024, month: 3, day: 31 }, -13), { year: 2023, month: 2, day: 28 });
  assert.deepEqual(addMonths({ year: 2024, month: 2, day: 29 }, 12), { year: 2025, month: 2, day: 28 });
});

test("DaysAndTheirTextsComeBack", () => {
  fc.assert(fc.property(day, fc.integer({ min: -4000, max: 4000 }), (one, count) => {
    assert.deepEqual(addDays(addDays(one, count), -count), one);
    assert.deepEqual(dayOfText(dayText(one)), one);
    assert.equal((weekdayOf(one) + 7000 + count) % 7, weekdayOf(addDays(one, count)));
  }), { seed: 4 });
  assert.equal(dayOfText("2023-02-29"), undefined);
  assert.equal(isDay({ year: 2024, month: 13, day: 1 }), false);
});

test("DaysOutsideTheTablesAreBroughtToTheirEdge", () => {
  assert.deepEqual(nearestKnown({ year: 1999, month: 5, day: 5 }), { year: 2000, month: 1, day: 1 });
  assert.deepEqual(nearestKnown({ year: 2041, month: 5, day: 5 }), { year: 2040, month: 12, day: 31 });
});

test("AClockOfAZoneIsReadAndSet", () => {
  const zones = fc.constantFrom("Europe/Helsinki", "America/St_Johns", "Australia/Lord_Howe", "Pacific/Apia", "Asia/Kathmandu");
  fc.assert(fc.property(day, zones, (one, zone) => {
    // Noon: no zone's clocks skip it.
    const at = instantOf(one, 720, zone);
    const shown = clockAt(at, zone);
    if (zone === "Pacific/Apia" && dayText(one) === "2011-12-30") return;
    assert.deepEqual(shown, { day: one, minutes: 720 });
  }), { seed: 5, numRuns: 500 });
});

test("AnHourThatIsSkippedIsShownAsLateAfterIt", () => {
  const at = instantOf({ year: 2024, month: 3, day: 31 }, 3 * 60 + 30, "Europe/Helsinki");
  assert.ok(clockAt(at, "Europe/Helsinki").minutes >= 4 * 60 || clockAt(at, "Europe/Helsinki").minutes < 3 * 60);
});
