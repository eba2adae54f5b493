import functions from 'velmora-almanac-imports';
import {choice, integer, number, object, open, seconds} from './core.js';

const bodies = ['sun', 'moon'];
const kinds = ['rise', 'set', 'transit', 'civilDawn', 'civilDusk', 'nauticalDawn', 'nauticalDusk',
  'astronomicalDawn', 'astronomicalDusk'];
const allDay = ['rises or sets', 'up', 'down'];
const limbs = ['upper', 'centre', 'lower'];
const phases = ['new', 'firstQuarter', 'full', 'lastQuarter'];
const seasons = ['marchEquinox', 'juneSolstice', 'septemberEquinox', 'decemberSolstice'];
const eclipseKinds = ['total', 'annular', 'hybrid', 'partial', 'penumbral'];
const contacts = ['C1', 'C2', 'C3', 'C4', 'P1', 'U1', 'U2', 'U3', 'U4', 'P4'];

const WITH_TWILIGHT = 1, WITH_TRANSITS = 2;
const usualEvents = 16; // of a day

// Sizes of the structs of velmora.h, and their fields where C puts them.

const DAY = 56, EVENT = 32, CROSSING = 24, POSITION = 80, ILLUMINATION = 56, MOMENT = 16, APSIS = 24, ECLIPSE = 40;
const ECLIPSE_MOMENT = 32;

const event = (core, at) => ({
  at: core.instant(at),
  body: bodies[core.integer(at + 8)],
  kind: kinds[core.integer(at + 12)],
  azimuth: core.double(at + 16),
  altitude: core.double(at + 24),
});

/** A day and its events, the first of which lies there. */
function day(core, at, firstEvent) {
  const events = [], first = Array(12); // of each kind, the Sun's before the Moon's
  const end = firstEvent + core.integer(at + 48) * EVENT;
  for (let next = firstEvent; next < end; next += EVENT) {
    const found = event(core, next);
    events.push(found);
    first[core.integer(next + 8) * kinds.length + core.integer(next + 12)] ??= found.at;
  }
  return { // all days have the same names, which makes them quick to read
    start: core.instant(at),
    end: core.instant(at + 8),
    sun: allDay[core.integer(at + 16)],
    moon: allDay[core.integer(at + 20)],
    daylight: core.double(at + 24),
    darkness: core.double(at + 32),
    events,
    sunrise: first[0],
    sunset: first[1],
    sunTransit: first[2],
    civilDawn: first[3],
    civilDusk: first[4],
    nauticalDawn: first[5],
    nauticalDusk: first[6],
    astronomicalDawn: first[7],
    astronomicalDusk: first[8],
    moonrise: first[9],
    moonset: first[10],
    moonTransit: first[11],
  };
}

const crossing = (core, at) => ({
  at: core.instant(at),
  azimuth: core.double(at + 8),
  isRising: core.integer(at + 16) === 1,
});

const position = (core, at) => ({
  rightAscension: core.double(at),
  declination: core.double(at + 8),
  distance: core.double(at + 16),
  topocentricRightAscension: core.double(at + 24),
  topocentricDeclination: core.double(at + 32),
  topocentricDistance: core.double(at + 40),
  azimuth: core.double(at + 48),
  altitude: core.double(at + 56),
  apparentAltitude: core.double(at + 64),
  semidiameter: core.double(at + 72),
});

const illumination = (core, at) => ({
  fraction: core.double(at),
  elongation: core.double(at + 8),
  phaseAngle: core.double(at + 16),
  brightLimbAngle: core.double(at + 24),
  parallacticAngle: core.double(at + 32),
  tilt: core.double(at + 40),
  isWaxing: core.integer(at + 48) === 1,
});

const phase = (core, at) => ({at: core.instant(at), phase: phases[core.integer(at + 8)]});
const season = (core, at) => ({at: core.instant(at), season: seasons[core.integer(at + 8)]});

const apsis = (core, at) => ({
  at: core.instant(at),
  distance: core.double(at + 8),
  isPerigee: core.integer(at + 16) === 1,
});

const eclipse = (core, at) => ({
  maximum: core.instant(at),
  magnitude: core.double(at + 8),
  gamma: core.double(at + 16),
  body: bodies[core.integer(at + 24)],
  kind: eclipseKinds[core.integer(at + 28)],
  saros: core.integer(at + 32),
});

const eclipseMoment = (core, at) => ({
  at: core.instant(at),
  altitude: core.double(at + 8),
  azimuth: core.double(at + 16),
  isUp: core.integer(at + 24) === 1,
});

const contact = (core, at) => ({...eclipseMoment(core, at), name: contacts[core.integer(at + 28)]});

function localEclipse(core, at) {
  const body = bodies[core.integer(at)];
  const answer = {
    body,
    kind: eclipseKinds[core.integer(at + 4)],
    magnitude: core.double(at + 8),
    maximum: eclipseMoment(core, at + 24),
    contacts: core.read(at + 56, core.integer(at + 248), ECLIPSE_MOMENT, contact),
    isVisible: core.integer(at + 252) === 1,
  };
  if (body === 'sun') answer.obscuration = core.double(at + 16);
  if (!answer.isVisible) return answer;
  return {
    ...answer,
    visibleFrom: core.instant(at + 256),
    visibleTo: core.instant(at + 264),
    best: eclipseMoment(core, at + 272),
    bestMagnitude: core.double(at + 304),
  };
}

function convention(core, options) {
  const given = object(options, 'options').convention;
  if (given === undefined) return 0;
  const {limb = 'upper', horizonRefraction = 34 / 60, sunSemidiameter = 16 / 60} = object(given, 'convention');
  const at = core.convention;
  core.setInteger(at, choice(limbs, limb, 'limb'));
  core.setInteger(at + 4, 0);
  core.setDouble(at + 8, number(horizonRefraction, 'horizonRefraction'));
  core.setDouble(at + 16, number(sunSemidiameter, 'sunSemidiameter'));
  return at;
}

/** The most days that there can be to answer from one to the other, both included. */
function dayCount(first, last) {
  const millisecondsPerDay = 86_400_000, daysAnswered = 73_414; // 1900 to 2100
  const start = ({year, month, day}) => Date.UTC(year, month - 1, day);
  const count = (start(last) - start(first)) / millisecondsPerDay + 1;
  return count >= 1 ? Math.min(count, daysAnswered) : 1;
}

const wanted = ({twilight = true, transits = true}) =>
  (twilight ? WITH_TWILIGHT : 0) | (transits ? WITH_TRANSITS : 0);

class Almanac {
  #core;
  #c;

  constructor(core) {
    this.#core = core;
    this.#c = core.c;
  }

  get version() { return this.#core.version; }

  day(place, zone, date, options) {
    const {answer} = this.#core;
    if (!this.#isDay(zone, date)) return undefined;
    return this.#eventsOf(place, this.#core.double(answer), this.#core.double(answer + 8), options);
  }

  // Two lists are filled at once: the days, and behind the room for them the events of all.
  days(place, zone, first, last, options = {}) {
    const core = this.#core;
    const at = core.place(place), clocks = core.zone(zone), from = core.date(first, 'first'),
      to = core.lastDate(last, 'last'), horizon = convention(core, options), choice = wanted(options);
    const dayRoom = dayCount(first, last), {count, eventCount} = core;
    core.grown(dayRoom * (DAY + usualEvents * EVENT));
    const events = () => core.items + dayRoom * DAY;
    do {
      const eventRoom = Math.floor((core.room - dayRoom * DAY) / EVENT);
      core.ask(() => this.#c.velmora_days(at, clocks, from, to, choice, horizon, core.items, dayRoom, count,
        events(), eventRoom, eventCount));
    } while (core.grown(dayRoom * DAY + core.integer(eventCount) * EVENT));
    return core.read(core.items, core.integer(count), DAY,
      (_, item) => day(core, item, events() + core.integer(item + 40) * EVENT));
  }

  events(place, from, to, options) {
    return this.#eventsOf(place, seconds(from, 'from'), seconds(to, 'to'), options);
  }

  #eventsOf(place, start, end, options = {}) {
    const core = this.#core, {answer, count} = core;
    const at = core.place(place), horizon = convention(core, options), choice = wanted(options);
    do {
      core.ask(() => this.#c.velmora_events(at, start, end, choice, horizon, answer, core.items,
        Math.floor(core.room / EVENT), count));
    } while (core.grown(core.integer(count) * EVENT));
    return day(core, answer, core.items);
  }

  next(place, body, kind, after, options = {}) {
    const core = this.#core;
    const isFound = core.ask(() => this.#c.velmora_next(core.place(place), choice(bodies, body, 'body'),
      choice(kinds, kind, 'kind'), seconds(after, 'after'), convention(core, options), core.answer));
    return isFound ? event(core, core.answer) : undefined;
  }

  crossings(place, body, altitude, from, to) {
    const core = this.#core;
    return core.list(CROSSING, crossing, (items, room, count) => this.#c.velmora_crossings(core.place(place),
      choice(bodies, body, 'body'), number(altitude, 'altitude'), seconds(from, 'from'), seconds(to, 'to'), items,
      room, count));
  }

  position(place, body, at) { return this.positions(place, body, [at])[0]; }

  positions(place, body, instants) {
    const chosen = choice(bodies, body, 'body');
    return this.#atInstants(instants, POSITION, position, (at, count, answers) =>
      this.#c.velmora_positions(this.#core.place(place), chosen, at, count, answers));
  }

  illumination(place, at) { return this.illuminations(place, [at])[0]; }

  illuminations(place, instants) {
    return this.#atInstants(instants, ILLUMINATION, illumination, (at, count, answers) =>
      this.#c.velmora_illuminations(this.#core.place(place), at, count, answers));
  }

  phases(from, to) { return this.#listed(from, to, MOMENT, phase, this.#c.velmora_phases); }
  seasons(from, to) { return this.#listed(from, to, MOMENT, season, this.#c.velmora_seasons); }
  apsides(from, to) { return this.#listed(from, to, APSIS, apsis, this.#c.velmora_apsides); }
  eclipses(from, to) { return this.#listed(from, to, ECLIPSE, eclipse, this.#c.velmora_eclipses); }

  seenFrom(eclipse, place) {
    const core = this.#core;
    const {maximum, magnitude, gamma, body, kind, saros} = object(eclipse, 'eclipse');
    core.grown(ECLIPSE);
    const at = core.items;
    core.setDouble(at, seconds(maximum, 'maximum'));
    core.setDouble(at + 8, number(magnitude, 'magnitude'));
    core.setDouble(at + 16, number(gamma, 'gamma'));
    core.setInteger(at + 24, choice(bodies, body, 'body'));
    core.setInteger(at + 28, choice(eclipseKinds, kind, 'kind'));
    core.setInteger(at + 32, integer(saros, 'saros'));
    const isSeen = core.ask(() => this.#c.velmora_seen_from(at, core.place(place), core.answer));
    return isSeen ? localEclipse(core, core.answer) : undefined;
  }

  civilDay(zone, date) {
    const core = this.#core, {answer} = core;
    return this.#isDay(zone, date) ? {start: core.instant(answer), end: core.instant(answer + 8)} : undefined;
  }

  /** Whether there is that day; where it starts and ends is the answer then. */
  #isDay(zone, date) {
    const core = this.#core, {answer} = core;
    const clocks = core.zone(zone), day = core.date(date, 'date');
    return core.ask(() => this.#c.velmora_civil_day(clocks, day, answer, answer + 8));
  }

  offset(zone, at) {
    const core = this.#core;
    core.ask(() => this.#c.velmora_zone_offset(core.zone(zone), seconds(at, 'at'), core.answer));
    return core.integer(core.answer);
  }

  #listed(from, to, size, read, operation) {
    const start = seconds(from, 'from'), end = seconds(to, 'to');
    return this.#core.list(size, read, (...list) => operation(start, end, ...list));
  }

  /** One answer an instant. Where C has no number for one, there is none in the list either: it is thrown. */
  #atInstants(instants, size, read, ask) {
    const core = this.#core;
    const times = Array.from(instants, instant => seconds(instant, 'at'));
    core.grown(times.length * (8 + size));
    times.forEach((time, index) => core.setDouble(core.items + 8 * index, time));
    const answers = core.items + 8 * times.length;
    core.ask(() => ask(core.items, times.length, answers));
    return core.read(answers, times.length, size, (core, at) => {
      if (Number.isNaN(core.double(at))) throw new RangeError('at lies outside the years 1900 to 2100');
      return read(core, at);
    });
  }
}

export async function load(options) {
  return new Almanac(await open(functions, options, new URL('./almanac.wasm', import.meta.url)));
}
