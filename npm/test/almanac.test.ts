import assert from 'node:assert/strict';
import test from 'node:test';
import {load, type Day, type Place} from 'velmora';

const almanac = await load();
const helsinki: Place = {latitude: 60.1667, longitude: 24.9667};
const tromso: Place = {latitude: 69.65, longitude: 18.96};

/** "hh:mm" on the zone's clocks, to the nearest minute. */
function clock(at: Date | undefined, timeZone: string): string {
  assert(at);
  const rounded = new Date(Math.round(at.getTime() / 60_000) * 60_000);
  return rounded.toLocaleTimeString('en-GB', {timeZone, hour: '2-digit', minute: '2-digit'});
}

function dayIn(place: Place, zone: string, year: number, month: number, day: number): Day {
  const answer = almanac.day(place, zone, {year, month, day});
  assert(answer);
  return answer;
}

test('midsummer in Helsinki is as PyEphem has it', () => {
  const day = dayIn(helsinki, 'Europe/Helsinki', 2024, 6, 21);
  assert.equal(clock(day.sunrise, 'Europe/Helsinki'), '03:54');
  assert.equal(clock(day.sunset, 'Europe/Helsinki'), '22:50');
  assert.equal(day.sun, 'rises or sets');
  assert.equal(day.darkness, 0);
  assert.equal(day.nauticalDusk, undefined);
});

test('a day in New York is as PyEphem has it', () => {
  const day = dayIn({latitude: 40.7128, longitude: -74.006}, 'America/New_York', 2024, 4, 8);
  assert.equal(clock(day.sunrise, 'America/New_York'), '06:27');
  assert.equal(clock(day.sunset, 'America/New_York'), '19:29');
});

test('days last as long as their clocks show', () => {
  const hours = (month: number, day: number) => {
    const {start, end} = dayIn(helsinki, 'Europe/Helsinki', 2024, month, day);
    return (end.getTime() - start.getTime()) / 3_600_000;
  };
  assert.equal(hours(3, 31), 23);
  assert.equal(hours(10, 27), 25);
  assert.equal(hours(6, 21), 24);
});

test('Apia skipped a day', () => {
  const apia = {latitude: -13.83, longitude: -171.77};
  assert.equal(almanac.day(apia, 'Pacific/Apia', {year: 2011, month: 12, day: 30}), undefined);
  const days = almanac.days(apia, 'Pacific/Apia', {year: 2011, month: 12, day: 28}, {year: 2012, month: 1, day: 1});
  assert.equal(days.length, 4);
  assert.equal(days[1]!.end.getTime(), days[2]!.start.getTime());
});

test('the polar night has no sunrise until January', () => {
  const day = dayIn(tromso, 'Europe/Oslo', 2024, 12, 21);
  assert.equal(day.sun, 'down');
  assert.equal(day.sunrise, undefined);
  assert(day.civilDawn);
  const sunrise = almanac.next(tromso, 'sun', 'rise', new Date('2024-12-01'));
  assert.equal(sunrise?.at.toISOString().slice(0, 10), '2025-01-15');
});

test('a place without the event in a year has none', () => {
  assert.equal(almanac.next({latitude: 0, longitude: 0}, 'sun', 'rise', new Date('2100-12-31T18:00Z')), undefined);
});

test('days of a year are those asked for one by one', () => {
  const days = almanac.days(tromso, 'Europe/Oslo', {year: 2026, month: 1, day: 1}, {year: 2026, month: 12, day: 31});
  assert.equal(days.length, 365);
  assert.deepEqual(days[171], dayIn(tromso, 'Europe/Oslo', 2026, 6, 21));
  const firstUp = days.find(day => day.sun === 'up'); // PyEphem's last sunset is on 18 May at 0:28
  assert.equal(firstUp?.start.toISOString(), '2026-05-18T22:00:00.000Z');
});

test('a list longer than the first room is whole', () => {
  const year = [new Date('2024-01-01'), new Date('2025-01-01')] as const;
  const {events} = almanac.events(helsinki, ...year);
  assert(events.length > 4000 / 32);
  assert(events.every((event, index) => index === 0 || events[index - 1]!.at <= event.at));
  const phases = almanac.phases(new Date('1900-01-01'), new Date('2101-01-01'));
  assert.equal(Math.round(phases.length / 4), Math.round(73_414 / 29.530589)); // of the days the mean lunations
  assert(phases.every(({phase}, index) => index < 4 || phase === phases[index - 4]!.phase));
});

test('what is not wanted is not found', () => {
  const day = almanac.day(helsinki, 'Europe/Helsinki', {year: 2024, month: 4, day: 8}, {twilight: false, transits: false});
  assert.deepEqual(day?.events.map(event => event.kind).sort(), ['rise', 'rise', 'set', 'set']);
});

test('a convention moves the horizon', () => {
  const convention = {limb: 'centre', horizonRefraction: 0} as const;
  const geometric = almanac.next(helsinki, 'sun', 'rise', new Date('2024-03-20'), {convention});
  const usual = almanac.next(helsinki, 'sun', 'rise', new Date('2024-03-20'));
  assert(geometric && usual && geometric.at > usual.at);
});

test('the Sun crosses ten degrees twice', () => {
  const crossings = almanac.crossings(helsinki, 'sun', 10, new Date('2024-06-21'), new Date('2024-06-22'));
  assert.deepEqual(crossings.map(crossing => crossing.isRising), [true, false]);
  const {apparentAltitude} = almanac.position(helsinki, 'sun', crossings[0]!.at);
  assert(Math.abs(apparentAltitude - 10) < 1e-4);
});

test('positions of many instants are those of each', () => {
  const instants = Array.from({length: 100}, (_, k) => new Date(1.7e12 + k * 3.6e6));
  const many = almanac.positions(helsinki, 'moon', instants);
  assert.equal(many.length, 100);
  const one = almanac.position(helsinki, 'moon', instants[42]!);
  assert(Math.abs(many[42]!.altitude - one.altitude) < 1e-9);
  assert.deepEqual(almanac.illuminations(helsinki, instants)[42], almanac.illumination(helsinki, instants[42]!));
  assert.deepEqual(almanac.positions(helsinki, 'sun', []), []);
});

test('phases, seasons and apsides of 2024 are as published', () => {
  const year = [new Date('2024-01-01'), new Date('2025-01-01')] as const;
  const minute = (at: Date) => new Date(Math.round(at.getTime() / 60_000) * 60_000).toISOString().slice(0, 16);
  assert.deepEqual(
    almanac.seasons(...year).map(({at, season}) => [season, minute(at)]),
    [['marchEquinox', '2024-03-20T03:06'], ['juneSolstice', '2024-06-20T20:51'],
      ['septemberEquinox', '2024-09-22T12:44'], ['decemberSolstice', '2024-12-21T09:21']]);
  const newMoons = almanac.phases(...year).filter(({phase}) => phase === 'new');
  assert.equal(minute(newMoons[3]!.at), '2024-04-08T18:21');
  const perigees = almanac.apsides(...year).filter(({isPerigee}) => isPerigee);
  assert.equal(minute(perigees[0]!.at).slice(0, 13), '2024-01-13T10');
});

test('the eclipse of April 2024 was total in Dallas', () => {
  const [eclipse] = almanac.eclipses(new Date('2024-04-01'), new Date('2024-05-01'));
  assert(eclipse);
  assert.deepEqual([eclipse.body, eclipse.kind, eclipse.saros], ['sun', 'total', 139]);
  const seen = almanac.seenFrom(eclipse, {latitude: 32.7767, longitude: -96.797});
  assert(seen?.isVisible && seen.best);
  assert.equal(seen.kind, 'total');
  assert.equal(seen.obscuration, 1);
  assert.deepEqual(seen.contacts.map(contact => contact.name), ['C1', 'C2', 'C3', 'C4']);
  assert.equal(clock(seen.contacts[1]!.at, 'America/Chicago'), '13:41');
  assert.equal(almanac.seenFrom(eclipse, {latitude: -33.87, longitude: 151.21})?.isVisible, false);
  assert.equal(almanac.seenFrom(eclipse, {latitude: -60, longitude: 20}), undefined);
});

test('an eclipse of the Moon has no obscuration', () => {
  const [eclipse] = almanac.eclipses(new Date('2025-09-01'), new Date('2025-09-10'));
  const seen = eclipse && almanac.seenFrom(eclipse, helsinki);
  assert(seen);
  assert.equal('obscuration' in seen, false);
  assert.equal(seen.kind, 'total');
});

test('a zone has its offset', () => {
  assert.equal(almanac.offset('Asia/Kathmandu', new Date('2024-01-01')), 20_700);
  assert.equal(almanac.offset('GMT-03:30', new Date('2024-01-01')), -12_600);
});

test('instants of Temporal are taken', () => {
  const instant = {epochMilliseconds: Date.UTC(2024, 5, 21)};
  assert.deepEqual(almanac.position(helsinki, 'sun', instant), almanac.position(helsinki, 'sun', new Date('2024-06-21')));
});
