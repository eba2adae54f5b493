// The C interface in WebAssembly: its memory, its lists, its zones.

const NONE = 2; // VELMORA_NONE

// Where in the scratch memory an argument or an answer lies.
const PLACE = 0, DATE = 24, LAST_DATE = 40, CONVENTION = 56, COUNT = 80, EVENT_COUNT = 84, ANSWER = 88;
const scratchSize = 416;
const mostMemory = 2 ** 31;

const decoder = new TextDecoder(), encoder = new TextEncoder();

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

/** Starts the module; `functionsOf` makes the functions that it imports. */
export async function open(functionsOf, {wasm} = {}, url) {
  const core = new Core();
  const env = functionsOf({
    UTF8ToString: at => core.text(at),
    allocateUTF8: text => core.write(text, core.c.malloc(3 * text.length + 1)),
  });
  env.emscripten_notify_memory_growth = () => core.look();
  const wasi_snapshot_preview1 = {
    proc_exit() { throw new Error('the library failed'); },
    environ_sizes_get(count, size) { // nothing is set
      core.setInteger(count, 0);
      core.setInteger(size, 0);
      return 0;
    },
    environ_get: () => 0,
  };
  const {exports} = await WebAssembly.instantiate(await compiled(wasm, url), {env, wasi_snapshot_preview1});
  core.start(exports);
  return core;
}

export class Core {
  /** Of what the module exports. */
  start(exports) {
    this.c = exports;
    this.look();
    exports._initialize();
    this.top = exports.stackSave();
    this.zones = new Map();
    this.scratch = exports.malloc(scratchSize);
    this.reserve(4096);
  }

  /** Memory that has grown is looked at anew. */
  look() {
    const {buffer} = this.c.memory;
    this.bytes = new Uint8Array(buffer);
    this.integers = new Int32Array(buffer);
    this.doubles = new Float64Array(buffer);
  }

  get version() { return this.text(this.c.velmora_version()); }
  get answer() { return this.scratch + ANSWER; }
  get convention() { return this.scratch + CONVENTION; }
  get count() { return this.scratch + COUNT; }
  get eventCount() { return this.scratch + EVENT_COUNT; }

  double(at) { return this.doubles[at >> 3]; }
  integer(at) { return this.integers[at >> 2]; }
  text(at) {
    let text = '';
    for (let next = at, byte; (byte = this.bytes[next]) !== 0; ++next) {
      if (byte > 127) return decoder.decode(this.bytes.subarray(at, this.bytes.indexOf(0, at)));
      text += String.fromCharCode(byte); // which is quicker for a clock's text
    }
    return text;
  }
  instant(at) { return new Date(Math.round(this.doubles[at >> 3] * 1000)); }
  setDouble(at, value) { this.doubles[at >> 3] = value; }
  setInteger(at, value) { this.integers[at >> 2] = value; }

  /** Writes the text where there is room for three bytes a character and one more. */
  write(text, at) {
    const {written} = encoder.encodeInto(text, this.bytes.subarray(at));
    this.bytes[at + written] = 0;
    return at;
  }

  /** Does what calls an operation: false where what is asked for does not exist; what is wrong is thrown. */
  ask(operation) {
    try {
      operation();
      return true;
    } catch (error) {
      this.c.stackRestore(this.top);
      if (error.status === NONE) return false;
      throw error;
    }
  }

  /** The items of a list that an operation fills, each of that size. */
  list(size, read, operation) {
    const {count} = this;
    do {
      this.ask(() => operation(this.items, Math.floor(this.room / size), count));
    } while (this.grown(size * this.integer(count)));
    return this.read(this.items, this.integer(count), size, read);
  }

  read(first, count, size, read) {
    const items = [];
    for (let index = 0; index < count; ++index) items.push(read(this, first + index * size));
    return items;
  }

  /** Whether more room was needed, which there is now. */
  grown(size) {
    if (size <= this.room) return false;
    this.reserve(size);
    return true;
  }

  reserve(size) {
    this.c.free(this.items ?? 0);
    this.items = size <= mostMemory ? this.c.malloc(size) : 0;
    this.room = this.items ? size : 0;
    if (!this.items) throw new RangeError('more is asked for than memory holds');
  }

  /** The handle of a zone; kept, as there are few. */
  zone(name) {
    if (typeof name !== 'string') throw new TypeError('zone is no text');
    let zone = this.zones.get(name);
    if (zone === undefined) this.zones.set(name, zone = this.openedZone(name));
    return zone;
  }

  openedZone(name) {
    if (name.includes('\0')) throw new RangeError('there is no zone of that name');
    this.grown(3 * name.length + 1);
    this.write(name, this.items);
    this.ask(() => this.c.velmora_zone_open(this.items, this.answer));
    return this.integer(this.answer);
  }

  place(place) {
    const {latitude, longitude, height = 0} = object(place, 'place');
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
    this.setInteger(at, integer(date.year, name));
    this.setInteger(at + 4, integer(date.month, name));
    this.setInteger(at + 8, integer(date.day, name));
    return at;
  }
}

export function object(value, name) {
  if (typeof value !== 'object' || value === null) throw new TypeError(`${name} is no object`);
  return value;
}

export function number(value, name) {
  if (typeof value !== 'number') throw new TypeError(`${name} is no number`);
  return value;
}

/** A number that C can take whole. */
export function integer(value, name) {
  if (number(value, name) !== (value | 0)) throw new RangeError(`${name} is ${value}; whole numbers are taken`);
  return value;
}

/** Seconds since 1970 of a Date, or of what Temporal has with epochMilliseconds. */
export function seconds(instant, name) {
  const milliseconds = instant?.getTime?.() ?? instant?.epochMilliseconds;
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
