// The C interface in WebAssembly: its memory, its lists, its zones.

const NONE = 2; // VELMORA_NONE

// Where in the scratch memory an argument or an answer lies.
const PLACE = 0, DATE = 24, LAST_DATE = 40, CONVENTION = 56, COUNT = 80, EVENT_COUNT = 84, ANSWER = 88;
const scratchSize = 416;
const mostMemory = 2 ** 31;

/** The module compiled, of what is given or of the file at the URL. */
async function compiled(given, url) {
  if (given instanceof WebAssembly.Module) return given;
  return WebAssembly.compile(given ?? await bytesOf(url));
}

async function bytesOf(url) {
  if (url.protocol === 'file:') {
    const {readFile} = await import(/* webpackIgnore: true */ /* @vite-ignore */ 'node:fs/promises');
    return readFile(url);
  }
  const response = await fetch(url);
  if (!response.ok) throw new Error(`${url} answers ${response.status}`);
  return response.arrayBuffer();
}

/** Starts the module, of which `start` is emscripten's part. */
export async function open(start, {wasm} = {}, url) {
  const module = await compiled(wasm, url);
  return new Core(await start({
    instantiateWasm(imports, received) {
      WebAssembly.instantiate(module, imports).then(received);
      return {};
    },
  }));
}

export class Core {
  constructor(module) {
    this.module = module;
    this.scratch = module._malloc(scratchSize);
    this.zones = new Map();
    this.reserve(4096);
  }

  get version() { return this.module.UTF8ToString(this.module._velmora_version()); }
  get answer() { return this.scratch + ANSWER; }

  // Memory may have moved since it was last looked at.
  double(at) { return this.module.HEAPF64[at >> 3]; }
  integer(at) { return this.module.HEAP32[at >> 2]; }
  text(at) { return this.module.UTF8ToString(at); }
  setDouble(at, value) { this.module.HEAPF64[at >> 3] = value; }
  setInteger(at, value) { this.module.HEAP32[at >> 2] = value; }

  /** Calls an operation: false where what is asked for does not exist; what is wrong is thrown. */
  ask(operation, ...given) {
    const top = this.module.stackSave();
    try {
      operation(...given);
      return true;
    } catch (error) {
      this.module.stackRestore(top);
      if (error.status === NONE) return false;
      throw error;
    }
  }

  /** The items of a list that an operation fills, each of that size. */
  list(size, read, operation, ...given) {
    const count = this.scratch + COUNT;
    do {
      this.ask(operation, ...given, this.items, Math.floor(this.room / size), count);
    } while (this.grown(size * this.integer(count)));
    return this.read(this.items, this.integer(count), size, read);
  }

  read(first, count, size, read) {
    return Array.from({length: count}, (_, index) => read(this, first + index * size));
  }

  /** Whether more room was needed, which there is now. */
  grown(size) {
    if (size <= this.room) return false;
    this.reserve(size);
    return true;
  }

  reserve(size) {
    this.module._free(this.items ?? 0);
    this.items = size <= mostMemory ? this.module._malloc(size) : 0;
    this.room = this.items ? size : 0;
    if (!this.items) throw new RangeError('more is asked for than memory holds');
  }

  /** The handle of a zone; kept, as there are few. */
  zone(name) {
    if (typeof name !== 'string') throw new TypeError('zone is no text');
    if (!this.zones.has(name)) this.zones.set(name, this.openedZone(name));
    return this.zones.get(name);
  }

  openedZone(name) {
    if (name.includes('\0')) throw new RangeError('there is no zone of that name');
    const size = 3 * name.length + 1;
    this.grown(size);
    this.module.stringToUTF8(name, this.items, size);
    this.ask(this.module._velmora_zone_open, this.items, this.answer);
    return this.integer(this.answer);
  }

  place(place) {
    if (typeof place !== 'object' || place === null) throw new TypeError('place is no object');
    const {latitude, longitude, height = 0} = place;
    const at = this.scratch + PLACE;
    this.setDouble(at, number(latitude, 'latitude'));
    this.setDouble(at + 8, number(longitude, 'longitude'));
    this.setDouble(at + 16, number(height, 'height'));
    return at;
  }

  date(date, name) { return this.dateAt(this.scratch + DATE, date, name); }
  lastDate(date, name) { return this.dateAt(this.scratch + LAST_DATE, date, name); }

  dateAt(at, date, name) {
    if (typeof date !== 'object' || date === null) throw new TypeError(`${name} is no date of year, month, day`);
    [date.year, date.month, date.day].forEach((part, index) => {
      this.setInteger(at + 4 * index, integer(part, name));
    });
    return at;
  }

  get convention() { return this.scratch + CONVENTION; }
  get count() { return this.scratch + COUNT; }
  get eventCount() { return this.scratch + EVENT_COUNT; }
}

export function number(value, name) {
  if (typeof value !== 'number') throw new TypeError(`${name} is no number`);
  return value;
}

/** A number that C can take whole. */
export function integer(value, name) {
  if (!Number.isInteger(number(value, name)) || value !== (value | 0)) {
    throw new RangeError(`${name} is ${value}; whole numbers are taken`);
  }
  return value;
}

/** Seconds since 1970 of a Date, or of what Temporal has with epochMilliseconds. */
export function seconds(instant, name) {
  const milliseconds = typeof instant?.getTime === 'function' ? instant.getTime() : instant?.epochMilliseconds;
  if (typeof milliseconds !== 'number') throw new TypeError(`${name} is neither a Date nor an instant of Temporal`);
  if (Number.isNaN(milliseconds)) throw new RangeError(`${name} is an invalid Date`);
  return milliseconds / 1000;
}

/** The number of one of the names. */
export function choice(names, name, what) {
  const number = names.indexOf(name);
  if (number < 0) throw new RangeError(`${what} is one of ${names.join(', ')}`);
  return number;
}
