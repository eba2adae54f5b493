import functions from 'velmora-calendar-imports';
import {choice, integer, open} from './core.js';

const phases = ['full', 'firstQuarter', 'lastQuarter', 'new', 'waxingCrescent', 'waxingGibbous', 'waningGibbous',
  'waningCrescent'];
const twilights = ['civil', 'nautical', 'astronomical'];

// Sizes of the structs of velmora.h, and their fields where C puts them.

const CALENDAR_DAY = 24;
const firstText = 24, textSize = 16;

function calendarDay(core, at) {
  const image = core.integer(at + 12);
  return {
    day: core.integer(at),
    phase: phases[core.integer(at + 4)],
    age: core.integer(at + 8),
    image: image < 0 ? undefined : image,
    lit: core.double(at + 16),
  };
}

function riseSetRecord(core, at) {
  const minutes = index => core.integer(at + 4 * index);
  const text = index => core.text(at + firstText + textSize * index);
  return {
    moonRise: minutes(0),
    moonSet: minutes(1),
    sunRise: minutes(2),
    sunSet: minutes(3),
    dayLength: minutes(4),
    moonRiseText: text(0),
    moonSetText: text(1),
    sunRiseText: text(2),
    sunSetText: text(3),
    twilightBeginText: text(4),
    twilightEndText: text(5),
  };
}

class Calendar {
  #core;
  #c;

  constructor(core) {
    this.#core = core;
    this.#c = core.c;
  }

  get version() { return this.#core.version; }

  month(zone, year, month) {
    const core = this.#core;
    const clocks = core.zone(zone);
    return core.list(CALENDAR_DAY, calendarDay, (...list) => this.#c.velmora_calendar_month(clocks,
      integer(year, 'year'), integer(month, 'month'), ...list));
  }

  riseSet(place, zone, date, twilight = 'civil') {
    const core = this.#core;
    core.ask(() => this.#c.velmora_rise_set(core.place(place), core.zone(zone), core.date(date, 'date'),
      choice(twilights, twilight, 'twilight'), core.answer));
    return riseSetRecord(core, core.answer);
  }
}

export async function load(options) {
  return new Calendar(await open(functions, options, new URL('./calendar.wasm', import.meta.url)));
}
