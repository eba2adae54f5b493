import start from 'velmora-almanac-module';
import {choice, integer, number, open, seconds} from './core.js';

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

const instant = (core, at) => new Date(Math.round(core.double(at) * 1000));

const event = (core, at) => ({
  at: instant(core, at),
  body: bodies[core.integer(at + 8)],
  kind: kinds[core.integer(at + 12)],
  azimuth: core.double(at + 16),
  altitude: core.double(at + 24),
});

/** The name by which a day has the first event of its kind: "sunrise", "moonTransit", "civilDawn". */
function nameOf({body, kind}) {
  if (kind === 'transit') return body + 'Transit';
  return kind === 'rise' || kind === 'set' ? body + kind : kind;
}

function day(core, at, events) {
  const answer = {
    start: instant(core, at),
    end: instant(core, at + 8),
    sun: allDay[core.integer(at + 16)],
    moon: allDay[core.integer(at + 20)],
    daylight: core.double(at + 24),
    darkness: core.double(at + 32),
    events,
  };
  for (const event of events) answer[nameOf(event)] ??= event.at;
  return answer;
}

const crossing = (core, at) => ({
  at: instant(core, at),
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

const phase = (core, at) => ({at: instant(core, at), phase: phases[core.integer(at + 8)]});
const season = (core, at) => ({at: instant(core, at), season: seasons[core.integer(at + 8)]});

const apsis = (core, at) => ({
  at: instant(core, at),
  distance: core.double(at + 8),
  isPerigee: core.integer(at + 16) === 1,
});

const eclipse = (core, at) => ({
  maximum: instant(core, at),
  magnitude: core.double(at + 8),
  gamma: core.double(at + 16),
  body: bodies[core.integer(at + 24)],
  kind: eclipseKinds[core.integer(at + 28)],
  saros: core.integer(at + 32),
});

const eclipseMoment = (core, at) => ({
  at: instant(core, at),
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
    visibleFrom: instant(core, at + 256),
    visibleTo: instant(core, at + 264),
    best: eclipseMoment(core, at + 272),
    bestMagnitude: core.double(at + 304),
  };
}

function convention(core, given) {
  if (given === undefined) return 0;
  const {limb = 'upper', horizonRefraction = 34 / 60, sunSemidiameter = 16 / 60} = given;
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
    this.#c = core.module;
  }

  get version() { return this.#core.version; }

  day(place, zone, date, options) {
    const span = this.civilDay(zone, date);
    return span && this.events(place, span.start, span.end, options);
  }

  // Two lists are filled at once: the days, and behind the room for them the events of all.
  days(place, zone, first, last, options = {}) {
    const core = this.#core;
    const given = [core.place(place), core.zone(zone), core.date(first, 'first'),
      core.lastDate(last, 'last'), wanted(options), convention(core, options.convention)];
    const dayRoom = dayCount(first, last);
    core.grown(dayRoom * (DAY + usualEvents * EVENT));
    const events = () => core.items + dayRoom * DAY;
    do {
      const eventRoom = Math.floor((core.room - dayRoom * DAY) / EVENT);
      core.ask(this.#c._velmora_days, ...given, core.items, dayRoom, core.count, events(), eventRoom,
        core.eventCount);
    } while (core.grown(dayRoom * DAY + core.integer(core.eventCount) * EVENT));
    return core.read(core.items, core.integer(core.count), DAY, (_, at) => {
      const firstEvent = events() + core.integer(at + 40) * EVENT;
      return day(core, at, core.read(firstEvent, core.integer(at + 48), EVENT, event));
    });
  }

  events(place, from, to, options = {}) {
    const core = this.#core;
    const events = core.list(EVENT, event, this.#c._velmora_events, core.place(place), seconds(from, 'from'),
      seconds(to, 'to'), wanted(options), convention(core, options.convention), core.answer);
    return day(core, core.answer, events);
  }

  next(place, body, kind, after, options = {}) {
    const core = this.#core;
    const isFound = core.ask(this.#c._velmora_next, core.place(place), choice(bodies, body, 'body'),
      choice(kinds, kind, 'kind'), seconds(after, 'after'), convention(core, options.convention), core.answer);
    return isFound ? event(core, core.answer) : undefined;
  }

  crossings(place, body, altitude, from, to) {
    const core = this.#core;
    return core.list(CROSSING, crossing, this.#c._velmora_crossings, core.place(place),
      choice(bodies, body, 'body'), number(altitude, 'altitude'), seconds(from, 'from'), seconds(to, 'to'));
  }

  position(place, body, at) { return this.positions(place, body, [at])[0]; }

  positions(place, body, instants) {
    const chosen = choice(bodies, body, 'body');
    return this.#atInstants(instants, POSITION, position, (at, count, answers) =>
      this.#core.ask(this.#c._velmora_positions, this.#core.place(place), chosen, at, count, answers));
  }

  illumination(place, at) { return this.illuminations(place, [at])[0]; }

  illuminations(place, instants) {
    return this.#atInstants(instants, ILLUMINATION, illumination, (at, count, answers) =>
      this.#core.ask(this.#c._velmora_illuminations, this.#core.place(place), at, count, answers));
  }

  phases(from, to) { return this.#between(from, to, MOMENT, phase, this.#c._velmora_phases); }
  seasons(from, to) { return this.#between(from, to, MOMENT, season, this.#c._velmora_seasons); }
  apsides(from, to) { return this.#between(from, to, APSIS, apsis, this.#c._velmora_apsides); }
  eclipses(from, to) { return this.#between(from, to, ECLIPSE, eclipse, this.#c._velmora_eclipses); }

  seenFrom(eclipse, place) {
    const core = this.#core;
    const {maximum, magnitude, gamma, body, kind, saros} = eclipse;
    core.grown(ECLIPSE);
    const at = core.items;
    core.setDouble(at, seconds(maximum, 'maximum'));
    core.setDouble(at + 8, number(magnitude, 'magnitude'));
    core.setDouble(at + 16, number(gamma, 'gamma'));
    core.setInteger(at + 24, choice(bodies, body, 'body'));
    core.setInteger(at + 28, choice(eclipseKinds, kind, 'kind'));
    core.setInteger(at + 32, integer(saros, 'saros'));
    const isSeen = core.ask(this.#c._velmora_seen_from, at, core.place(place), core.answer);
    return isSeen ? localEclipse(core, core.answer) : undefined;
  }

  civilDay(zone, date) {
    const core = this.#core;
    const isDay = core.ask(this.#c._velmora_civil_day, core.zone(zone), core.date(date, 'date'), core.answer,
      core.answer + 8);
    return isDay ? {start: instant(core, core.answer), end: instant(core, core.answer + 8)} : undefined;
  }

  offset(zone, at) {
    const core = this.#core;
    core.ask(this.#c._velmora_zone_offset, core.zone(zone), seconds(at, 'at'), core.answer);
    return core.integer(core.answer);
  }

  #between(from, to, size, read, operation) {
    return this.#core.list(size, read, operation, seconds(from, 'from'), seconds(to, 'to'));
  }

  /** One answer an instant. Where C has no number for one, there is none in the list either: it is thrown. */
  #atInstants(instants, size, read, ask) {
    const core = this.#core;
    const times = Array.from(instants, instant => seconds(instant, 'at'));
    core.grown(times.length * (8 + size));
    times.forEach((time, index) => core.setDouble(core.items + 8 * index, time));
    const answers = core.items + 8 * times.length;
    ask(core.items, times.length, answers);
    return core.read(answers, times.length, size, (core, at) => {
      if (Number.isNaN(core.double(at))) throw new RangeError('at lies outside the years 1900 to 2100');
      return read(core, at);
    });
  }
}

export async function load(options) {
  return new Almanac(await open(start, options, new URL('./almanac.wasm', import.meta.url)));
}
