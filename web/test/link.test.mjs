import assert from "node:assert/strict";
import { test } from "node:test";
import fc from "fast-check";
import { source } from "./source.mjs";

const { readLink, writeLink, isFault, viewNames } = await source("link");
const { isZone } = await source("format");
const { daysIn } = await source("days");

const day = fc.record({ year: fc.integer({ min: 2000, max: 2040 }), month: fc.integer({ min: 1, max: 12 }) })
  .chain(({ year, month }) => fc.record({
    year: fc.constant(year), month: fc.constant(month), day: fc.integer({ min: 1, max: daysIn(year, month) }),
  }, { noNullPrototype: true }));
const degrees = (limit) => fc.integer({ min: -limit * 1e6, max: limit * 1e6 }).map((value) => value / 1e6 + 0);
const name = fc.string({ unit: "grapheme", maxLength: 30 })
  .map((text) => text.trim())
  .filter((text) => [...text].length <= 80 && !/[\u0000-\u001f\u007f-\u009f\u2028-\u202e\u2066-\u2069\ufffd]/.test(text));
const place = fc.record({
  latitude: degrees(90), longitude: degrees(180), name,
  zone: fc.constantFrom("Europe/Helsinki", "America/Argentina/Buenos_Aires", "Etc/GMT+5", "UTC", "Asia/Kathmandu"),
}, { noNullPrototype: true });
const link = fc.record({
  view: fc.constantFrom(...viewNames), day, time: fc.integer({ min: 0, max: 1439 }), place,
}, { requiredKeys: ["view"], noNullPrototype: true });

test("ALinkIsReadAsItWasWritten", () => {
  fc.assert(fc.property(link, (one) => {
    const written = writeLink(one);
    fc.pre(written.length <= 500);
    assert.deepEqual(readLink(written, isZone), one);
  }), { numRuns: 2000, seed: 1 });
});

test("AnyTextIsALinkOrAFaultAndNeverThrows", () => {
  const part = fc.constantFrom("#/", "month", "?", "day=", "2024-02-30", "&", "lat=", "91", "-0", "zone=", "%", "%E0%A4%A", "time=25:00", "name=", "1e9");
  const text = fc.oneof(fc.string({ unit: "binary", maxLength: 600 }), fc.array(part, { maxLength: 12 }).map((parts) => parts.join("")));
  fc.assert(fc.property(text, (one) => {
    const read = readLink(one, isZone);
    if (isFault(read)) {
      assert.ok(["view", "day", "time", "place", "link"].includes(read.part));
      assert.ok([...read.text].length <= 81);
    } else if (read.place) {
      assert.ok(Math.abs(read.place.latitude) <= 90 && Math.abs(read.place.longitude) <= 180);
    }
  }), { numRuns: 5000, seed: 2 });
});

test("WhatIsReadIsWrittenTheSame", () => {
  const part = fc.constantFrom("?", "&", "day=2024-02-29", "time=09:05", "lat=60.17", "lon=-24.9", "zone=UTC", "name=A%20b");
  fc.assert(fc.property(fc.array(part, { maxLength: 9 }), (parts) => {
    const read = readLink(`#/month${parts.join("")}`, isZone);
    if (!isFault(read)) assert.deepEqual(readLink(writeLink(read), isZone), read);
  }), { numRuns: 3000, seed: 3 });
});

for (const [hash, part] of [
  ["#/nowhere", "view"],
  ["#month", "link"],
  ["#/month?day=2024-02-30", "day"],
  ["#/month?day=2041-01-01", "day"],
  ["#/month?day=1999-12-31", "day"],
  ["#/month?day=2024-2-3", "day"],
  ["#/today?time=24:00", "time"],
  ["#/today?time=9:30", "time"],
  ["#/today?lat=60&lon=25", "place"],
  ["#/today?lat=91&lon=25&zone=UTC", "place"],
  ["#/today?lat=1e1&lon=25&zone=UTC", "place"],
  ["#/today?lat=60&lon=25&zone=Europe/Atlantis", "place"],
  ["#/today?name=Nowhere", "place"],
  ["#/today?lat=60&lon=25&zone=UTC&name=%E2%80%AEoslO", "place"],
  ["#/today?lat=60&lon=25&zone=UTC&name=%E2%81%A7Oslo", "place"],
  ["#/today?colour=red", "link"],
  ["#/today?day=2024-01-01&day=2024-01-02", "link"],
  [`#/today?${"x".repeat(600)}`, "link"],
]) {
  test(`TheLink ${hash.slice(0, 60)} IsWrongInItsPart ${part}`, () => {
    const read = readLink(hash, isZone);
    assert.ok(isFault(read));
    assert.equal(read.part, part);
  });
}

test("ANameOfBlanksIsNone", () => {
  assert.equal(readLink("#/today?lat=60&lon=25&zone=UTC&name=%20%20", isZone).place.name, "");
});

test("AnEmptyLinkLeavesEverythingAsItIs", () => {
  assert.deepEqual(readLink("", isZone), {});
  assert.deepEqual(readLink("#", isZone), {});
});
