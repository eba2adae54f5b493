// Rise, set and twilight of Sun and Moon on a day in Helsinki: processor time, the least of several rounds that take
// turns.
import * as suncalc from 'suncalc';
import * as astronomy from 'astronomy-engine';
import {load} from '../../build/npm/velmora/almanac.mjs';
import {load as loadCalendar} from '../../build/npm/velmora/calendar.mjs';

const rounds = 12, daysOfRound = 1461;
const almanac = await load(), calendar = await loadCalendar();
const latitude = 60.17, longitude = 24.94, place = {latitude, longitude}, zone = 'Europe/Helsinki';
const observer = new astronomy.Observer(latitude, longitude, 0);
const dayOf = date => ({year: date.getUTCFullYear(), month: date.getUTCMonth() + 1, day: date.getUTCDate()});

function byAstronomyEngine(date) {
  for (const direction of [1, -1]) {
    for (const body of ['Sun', 'Moon']) astronomy.SearchRiseSet(body, observer, direction, date, 1);
    for (const altitude of [-6, -12, -18]) astronomy.SearchAltitude('Sun', observer, direction, date, 1, altitude);
  }
}

const each = answer => dates => dates.forEach(answer);

/** The same dates, none within a month of the one before. */
const scattered = dates => dates.map((_, k) => dates[k * 577 % dates.length]);
const byDay = date => almanac.day(place, zone, dayOf(date), {transits: false});
const ways = {
  'astronomy-engine': each(byAstronomyEngine),
  'suncalc': each(date => {
    suncalc.getTimes(date, latitude, longitude);
    suncalc.getMoonTimes(date, latitude, longitude);
  }),
  'almanac.day, a day after the one before': each(byDay),
  'almanac.day, of another time': dates => scattered(dates).forEach(byDay),
  'almanac.days, a day of its four years': dates =>
    almanac.days(place, zone, dayOf(dates[0]), dayOf(dates.at(-1)), {transits: false}),
  'calendar.riseSet, one twilight': each(date => calendar.riseSet(place, zone, dayOf(date))),
};

const least = Object.fromEntries(Object.keys(ways).map(name => [name, Infinity]));
for (let round = 0; round < rounds; ++round) {
  const first = Date.UTC(2000 + 3 * round, 0, 1);
  const dates = Array.from({length: daysOfRound}, (_, k) => new Date(first + k * 86_400_000));
  for (const [name, answer] of Object.entries(ways)) {
    const asked = name === 'astronomy-engine' ? dates.slice(0, 100) : dates;
    const before = process.cpuUsage();
    answer(asked);
    const {user, system} = process.cpuUsage(before);
    least[name] = Math.min(least[name], (user + system) / asked.length);
  }
}
for (const [name, microseconds] of Object.entries(least)) {
  const times = other => (least[other] / microseconds).toFixed(1);
  console.log(`${name}: ${microseconds.toFixed(1)} µs; suncalc takes ${times('suncalc')} times as long, `
    + `astronomy-engine ${times('astronomy-engine')}`);
}
