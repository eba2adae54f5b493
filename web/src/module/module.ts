import type {
  Body, CalendarDay, City, CivilDate, DayInTheSky, End, HorizontalPosition, HostedView, LoadOptions, LoadVelmora,
  Moment, PhaseEvent, Place, SecondCalendar, SeenEclipse, Settings, Velmora, ViewKind, ViewOptions,
} from "../velmora";
import { icalendarOf } from "./icalendar";
import { Native } from "./native";
import { Pictures } from "./pictures";
import { Texts } from "./texts";
import { CanvasView } from "./view";

/** In the order of the library's numbers. */
const secondCalendars: readonly SecondCalendar[] =
  ["none", "hebrew", "islamic", "buddhist", "japanese", "chinese", "indian"];

/** Where the library looks for what the page fetches. */
const places: Readonly<Record<string, string>> = {
  images: "/share/velmora/resources/images",
  icons: "/share/velmora/app",
};

function parts({ year, month, day }: CivilDate): [number, number, number] {
  return [year, month, day];
}

export function isSame(one: CivilDate, other: CivilDate): boolean {
  return one.year === other.year && one.month === other.month && one.day === other.day;
}

/** The one module of the page: the selection, the answers, and the views on its canvases. */
export class Module implements Velmora {
  readonly version: string;
  readonly #views = new Set<CanvasView>();
  readonly #files = new Map<string, Promise<boolean>>();
  readonly #handedOver = new Set<string>();
  readonly #dayListeners = new Set<(day: CivilDate) => void>();
  readonly #announcementListeners = new Set<(text: string) => void>();
  readonly #file: (name: string) => Promise<ArrayBuffer>;
  #settings: Settings;
  #place: Place;
  #day: CivilDate;
  #cities?: Promise<void> | undefined;

  private constructor(readonly native: Native, readonly texts: Texts, readonly pictures: Pictures,
                      file: (name: string) => Promise<ArrayBuffer>, { settings, place, day }: LoadOptions) {
    this.version = native.text("velmora_web_version");
    this.#file = file;
    this.#settings = settings;
    this.#place = place;
    this.#day = day;
    this.configure(settings);
    this.select(place, day);
  }

  static async open(options: LoadOptions): Promise<Module> {
    const file = options.file ?? (async (name: string) => {
      const response = await fetch(options.base + name);
      if (!response.ok) throw new Error(`${name} could not be fetched: ${response.status}`);
      return response.arrayBuffer();
    });
    let module: Module | undefined;
    const pictures = new Pictures(() => module?.allStale());
    const [wasmBinary] = await Promise.all([file("velmora.wasm"), document.fonts.ready]);
    const texts = new Texts(options.fontFamily);
    module = new Module(await Native.open({ wasmBinary, texts, pictures }), texts, pictures, file, options);
    return module;
  }

  get settings(): Settings {
    return this.#settings;
  }
  get place(): Place {
    return this.#place;
  }
  get day(): CivilDate {
    return this.#day;
  }

  configure(settings: Settings): void {
    const calendar = secondCalendars.indexOf(settings.secondCalendar);
    const locale = new Intl.Locale(settings.locale).toString();  // which throws for what is none
    if (calendar < 0) throw new RangeError(`there is no second calendar "${settings.secondCalendar}"`);
    if (![0, 1, 2, 3, 4, 5, 6].includes(settings.weekStart)) throw new RangeError("a week starts on day 0 to 6");
    this.native.run("velmora_web_configure", locale.replaceAll("-", "_"), settings.clock === 24 ? 1 : 0,
                    settings.weekStart, calendar, settings.theme === "light" ? 1 : 0, settings.isTablet ? 1 : 0);
    this.#settings = settings;
    this.allStale();
  }

  select(place: Place, day: CivilDate): void {
    const { latitude, longitude, name, zone } = place;
    if (this.native.number("velmora_web_select", latitude, longitude, name, zone, ...parts(day)) === 0) {
      throw new RangeError(`"${name}" cannot be shown: latitude, longitude, zone or day is out of range`);
    }
    this.#place = place;
    this.allStale();
    this.changed();
  }

  selectDay(day: CivilDate): void {
    if (this.native.number("velmora_web_select_day", ...parts(day)) === 0) {
      throw new RangeError("the calendars show the years 2000 to 2040");
    }
    this.changed();
  }

  today(): CivilDate {
    return this.native.answer<CivilDate>("velmora_web_today")!;
  }

  onDayChange(listener: (day: CivilDate) => void): End {
    this.#dayListeners.add(listener);
    return () => this.#dayListeners.delete(listener);
  }

  onAnnouncement(listener: (text: string) => void): End {
    this.#announcementListeners.add(listener);
    return () => this.#announcementListeners.delete(listener);
  }

  createView(kind: ViewKind, canvas: HTMLElement, options: ViewOptions = {}): HostedView {
    const view = new CanvasView(this, kind, canvas, options);
    this.#views.add(view);
    return view;
  }

  skyOfDay(day: CivilDate): DayInTheSky | undefined {
    return this.native.answer("velmora_web_sky_of_day", ...parts(day));
  }

  moment(at: number): Moment | undefined {
    return this.native.answer("velmora_web_moment", at);
  }

  track(body: Body, instants: readonly number[]): readonly HorizontalPosition[] {
    const bytes = new Uint8Array(Float64Array.from(instants).buffer);
    return this.native.withBytes(bytes, (address) =>
      this.native.answer<HorizontalPosition[]>("velmora_web_track", body === "sun" ? 0 : 1, address, instants.length)!);
  }

  nextPhases(after: number): readonly PhaseEvent[] {
    return this.native.answer<PhaseEvent[]>("velmora_web_next_phases", after)!;
  }

  phases(from: number, to: number): readonly PhaseEvent[] {
    return this.native.answer<PhaseEvent[]>("velmora_web_phases", from, to)!;
  }

  nextEclipses(after: number, count: number): readonly SeenEclipse[] {
    return this.native.answer<SeenEclipse[]>("velmora_web_next_eclipses", after, count)!;
  }

  calendarDay(day: CivilDate): CalendarDay | undefined {
    return this.native.answer("velmora_web_calendar_day", ...parts(day));
  }

  words(english: string, ...values: string[]): string {
    return this.native.text("velmora_web_words", english)
      .replace(/%(\d)/g, (place, number: string) => values[Number(number) - 1] ?? place);
  }

  wordsForCount(english: string, count: number): string {
    return this.native.text("velmora_web_words_for_count", english, count);
  }

  async cities(prefix: string, limit: number): Promise<readonly City[]> {
    await this.#loadCities();
    return this.native.answer<City[]>("velmora_web_cities", prefix, limit)!;
  }

  async cityNear(latitude: number, longitude: number): Promise<City | undefined> {
    await this.#loadCities();
    return this.native.answer("velmora_web_city_near", latitude, longitude);
  }

  icalendar(year: number): string {
    return icalendarOf(this, year);
  }

  /** To be called after whatever may have moved the day, spoken, or changed what a view shows. */
  changed(): void {
    const day = this.native.answer<CivilDate>("velmora_web_day")!;
    const isMoved = !isSame(day, this.#day);
    this.#day = day;
    if (isMoved) for (const listener of [...this.#dayListeners]) listener(day);
    const sentences = this.native.answer<string[]>("velmora_web_take_announcements")!;
    for (const sentence of sentences) for (const listener of [...this.#announcementListeners]) listener(sentence);
    for (const view of [...this.#views]) view.tell();
  }

  allStale(): void {
    for (const view of [...this.#views]) view.stale();
  }

  forget(view: CanvasView): void {
    this.#views.delete(view);
  }

  /** Runs with another day selected, of which nobody is told. */
  visiting(day: CivilDate, run: () => void): void {
    const selected = this.#day;
    if (this.native.number("velmora_web_select_day", ...parts(day)) === 0) {
      throw new RangeError("the calendars show the years 2000 to 2040");
    }
    try {
      run();
    } finally {
      this.native.run("velmora_web_select_day", ...parts(selected));
    }
  }

  /** Fetches a picture for the library; "new" for the first that waits for it. */
  async handOver(file: string): Promise<"new" | "known" | "missing"> {
    if (this.#handedOver.has(file)) return "known";
    let fetched = this.#files.get(file);
    if (!fetched) {
      fetched = this.#fetchPicture(file);
      this.#files.set(file, fetched);
    }
    if (await fetched) return "new";
    this.#files.delete(file);
    return "missing";
  }

  async #fetchPicture(file: string): Promise<boolean> {
    const bytes = await this.#file(file).catch(() => undefined);
    if (!bytes) return false;
    const [folder, name] = file.split("/") as [string, string];
    this.native.withBytes(new Uint8Array(bytes), (address, size) =>
      this.native.run("velmora_web_hand_over", `${places[folder]}/${name}`, address, size));
    this.#handedOver.add(file);
    return true;
  }

  #loadCities(): Promise<void> {
    this.#cities ??= this.#file("cities.table").then(
      (bytes) => this.native.withBytes(new Uint8Array(bytes), (address, size) =>
        this.native.run("velmora_web_take_cities", address, size)),
      (failure: unknown) => {
        this.#cities = undefined;
        throw failure;
      });
    return this.#cities;
  }
}

export const loadVelmora: LoadVelmora = (options) => Module.open(options);
