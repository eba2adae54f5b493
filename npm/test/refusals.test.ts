import assert from 'node:assert/strict';
import test from 'node:test';
import {load} from 'velmora';
import {load as loadCalendar} from 'velmora/calendar';

const almanac = await load();
const calendar = await loadCalendar();
const helsinki = {latitude: 60.17, longitude: 24.94};
const day = {year: 2024, month: 6, day: 21};
const now = new Date('2024-06-21');
const anything: any = undefined;

function refused(ask: () => unknown, name: string, message: string): void {
  test(`${message} is a ${name}`, () => assert.throws(ask, {name, message}));
}

const range = (ask: () => unknown, message: string) => refused(ask, 'RangeError', message);
const type = (ask: () => unknown, message: string) => refused(ask, 'TypeError', message);

range(() => almanac.position({latitude: 90.5, longitude: 0}, 'sun', now), 'latitude lies outside -90 to 90');
range(() => almanac.position({latitude: 0, longitude: NaN}, 'sun', now), 'longitude lies outside -180 to 180');
range(() => almanac.position({...helsinki, height: -1}, 'sun', now), 'height lies outside 0 to 100000');
type(() => almanac.position({...helsinki, latitude: '60' as any}, 'sun', now), 'latitude is no number');
type(() => almanac.position(anything, 'sun', now), 'place is no object');

range(() => almanac.position(helsinki, 'mars' as any, now), 'body is one of sun, moon');
range(() => almanac.next(helsinki, 'sun', 'noon' as any, now), 'kind is one of rise, set, transit, civilDawn, '
  + 'civilDusk, nauticalDawn, nauticalDusk, astronomicalDawn, astronomicalDusk');
range(() => almanac.crossings(helsinki, 'sun', 91, now, now), 'altitude lies outside -90 to 90');

range(() => almanac.position(helsinki, 'sun', new Date('1899-12-31')), 'at lies outside the years 1900 to 2100');
range(() => almanac.illumination(helsinki, new Date('2101-01-02')), 'at lies outside the years 1900 to 2100');
range(() => almanac.phases(new Date('1800-01-01'), now), 'from lies outside the years 1900 to 2100');
range(() => almanac.phases(now, new Date('2000-01-01')), 'to lies before from');
range(() => almanac.phases(new Date(NaN), now), 'from is an invalid Date');
type(() => almanac.phases('2024-01-01' as any, now), 'from is neither a Date nor an instant of Temporal');
type(() => almanac.position(helsinki, 'sun', 0 as any), 'at is neither a Date nor an instant of Temporal');

range(() => almanac.day(helsinki, 'Europe/Atlantis', day), 'there is no zone of the name Europe/Atlantis');
range(() => almanac.day(helsinki, 'europe/helsinki', day), 'there is no zone of the name europe/helsinki');
range(() => almanac.day(helsinki, 'UTC\0', day), 'there is no zone of that name');
type(() => almanac.day(helsinki, anything, day), 'zone is no text');

range(() => almanac.day(helsinki, 'UTC', {...day, month: 2, day: 30}), 'date is no day of the calendar');
range(() => almanac.day(helsinki, 'UTC', {...day, year: 1899}), 'date lies outside the years 1900 to 2100');
range(() => almanac.day(helsinki, 'UTC', {...day, day: 1.5}), 'date is 1.5; whole numbers are taken');
range(() => almanac.day(helsinki, 'UTC', {...day, year: 2 ** 32 + 2024}),
  'date is 4294969320; whole numbers are taken');
type(() => almanac.day(helsinki, 'UTC', anything), 'date is no date of year, month, day');
range(() => almanac.days(helsinki, 'UTC', day, {...day, day: 20}), 'last lies before first');

range(() => almanac.days(helsinki, 'UTC', day, {...day, year: 200_000}), 'last is no day of the calendar');
range(() => almanac.days(helsinki, 'UTC', day, {...day, year: 2200}), 'last lies outside the years 1900 to 2100');

range(() => almanac.days(helsinki, 'Europe/Helsinki', {year: 1900, month: 1, day: 1}, day),
  'a day lies outside the years 1900 to 2100 of UTC');

range(() => almanac.next(helsinki, 'sun', 'rise', now, {convention: {horizonRefraction: 2.1}}),
  'an angle of the convention lies outside 0 to 2 degrees');
range(() => almanac.next(helsinki, 'sun', 'rise', now, {convention: {limb: 'left' as any}}),
  'limb is one of upper, centre, lower');

type(() => almanac.day(helsinki, 'UTC', day, null as any), 'options is no object');
type(() => almanac.next(helsinki, 'sun', 'rise', now, 'soon' as any), 'options is no object');
type(() => almanac.days(helsinki, 'UTC', day, day, {convention: null as any}), 'convention is no object');
type(() => almanac.seenFrom(null as any, helsinki), 'eclipse is no object');

range(() => calendar.month('UTC', 1999, 1), 'the phase calendar covers the years 2000 to 2040');
range(() => calendar.month('UTC', 2024, 13), 'month lies outside 1 to 12');
range(() => calendar.riseSet(helsinki, 'UTC', day, 'dim' as any),
  'twilight is one of civil, nautical, astronomical');

test('after a thousand refusals answers are as before', () => {
  const before = almanac.day(helsinki, 'Europe/Helsinki', day);
  for (let k = 0; k < 1000; ++k) {
    assert.throws(() => almanac.position({latitude: 91, longitude: 0}, 'sun', now),
      {name: 'RangeError', message: 'latitude lies outside -90 to 90'});
  }
  assert.deepEqual(almanac.day(helsinki, 'Europe/Helsinki', day), before);
});
