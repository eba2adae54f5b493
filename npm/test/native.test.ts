// The answers in WebAssembly beside those of the library on this machine, which make-native.c wrote.

import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import test from 'node:test';
import {load} from 'velmora';
import {load as loadCalendar} from 'velmora/calendar';

type Row = number[];
const native: Record<'days' | 'positions' | 'eclipses' | 'months' | 'records', Row[]> =
  JSON.parse(readFileSync(new URL('./native.json', import.meta.url), 'utf8'));

const almanac = await load();
const calendar = await loadCalendar();

const places = [{latitude: 60.17, longitude: 24.94}, {latitude: 69.65, longitude: 18.96, height: 10},
  {latitude: -33.87, longitude: 151.21}, {latitude: 0.5, longitude: -78.5, height: 2850},
  {latitude: -77.85, longitude: 166.67}];
const zones = ['Europe/Helsinki', 'Europe/Oslo', 'Australia/Sydney', 'America/Guayaquil', 'Antarctica/McMurdo'];
const bodies = ['sun', 'moon'] as const;

test('positions are the same to the last bit', () => {
  const names = ['rightAscension', 'declination', 'distance', 'topocentricRightAscension', 'topocentricDeclination',
    'topocentricDistance', 'azimuth', 'altitude', 'apparentAltitude', 'semidiameter'] as const;
  for (const [place, at, body, ...expected] of native.positions as [number, number, number, ...number[]][]) {
    const position = almanac.position(places[place]!, bodies[body]!, {epochMilliseconds: at * 1000});
    assert.deepEqual(names.map(name => position[name]), expected);
  }
});

test('days are the same to the last bit, their instants to the millisecond of a Date', () => {
  let day;
  let next = 0;
  for (const row of native.days) {
    if (row.length === 9) {
      const [place, year, month, date, start, daylight, darkness] = row as [number, number, number, number, number, number, number];
      assert.equal(day?.events.length ?? 0, next);
      day = almanac.day(places[place]!, zones[place]!, {year, month, day: date});
      next = 0;
      assert(day);
      assert.equal(day.start.getTime(), start * 1000, `${zones[place]} ${year}-${month}-${date}`);
      assert.deepEqual([day.daylight, day.darkness], [daylight, darkness]);
      continue;
    }
    const event = day?.events[next++];
    assert(event);
    assert.equal(event.at.getTime(), Math.round(row[0]! * 1000));
    assert.equal(event.body, bodies[row[1]!]);
    assert.deepEqual([event.azimuth, event.altitude], row.slice(3, 5));
  }
});

test('eclipses are the same', () => {
  const eclipses = almanac.eclipses(new Date(1.7e12), new Date(2.0e12));
  assert.equal(eclipses.length, native.eclipses.length);
  native.eclipses.forEach(([maximum, magnitude, body, , isVisible, best, bestMagnitude], index) => {
    const eclipse = eclipses[index]!;
    assert.equal(eclipse.maximum.getTime(), Math.round(maximum! * 1000));
    assert.equal(eclipse.magnitude, magnitude);
    assert.equal(eclipse.body, bodies[body!]);
    const seen = almanac.seenFrom(eclipse, places[0]!);
    assert.equal(seen?.isVisible ? 1 : 0, isVisible);
    if (!seen?.best) return;
    // Asked for by a maximum that is rounded to the millisecond.
    assert(Math.abs(seen.best.at.getTime() - best! * 1000) <= 2);
    assert(Math.abs(seen.bestMagnitude! - bestMagnitude!) < 1e-6);
  });
});

test('the calendar and its records are the same to the last bit', () => {
  const phases = ['full', 'firstQuarter', 'lastQuarter', 'new', 'waxingCrescent', 'waxingGibbous', 'waningGibbous',
    'waningCrescent'];
  const twilights = ['civil', 'nautical', 'astronomical'] as const;
  for (const [place, year, month, day, phase, age, image, lit] of native.months) {
    const expected = {day, phase: phases[phase!], age, image: image! < 0 ? undefined : image, lit};
    assert.deepEqual(calendar.month(zones[place!]!, year!, month!)[day! - 1], expected);
  }
  for (const [place, year, month, day, twilight, ...minutes] of native.records) {
    const record = calendar.riseSet(
      places[place!]!, zones[place!]!, {year: year!, month: month!, day: day!}, twilights[twilight!]!);
    assert.deepEqual([record.moonRise, record.moonSet, record.sunRise, record.sunSet, record.dayLength], minutes);
  }
});
