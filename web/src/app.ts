import { type Day, nearestKnown, sameDay } from "./days";
import { clockAt, Format, instantOf, isZone } from "./format";
import { isFault, type Link, readLink, type ViewName, writeLink } from "./link";
import { type Choices, type Kept, Store } from "./store";
import type { LoadVelmora, Place, Settings, Velmora } from "./velmora";
import { isRightToLeft, languageFor, localeFor, setTexts } from "./words";

/** What changed: the day or the moment, or so much that a screen is to be made anew; or a person went to a section. */
export type Change = "moment" | "day" | "all" | "section";

/** What the page gets from outside: the module, and the files that lie beside the page. */
export interface Surroundings {
  load: LoadVelmora;
  json(file: string): Promise<unknown>;
  file?: (name: string) => Promise<ArrayBuffer>;
  base: string;
}

const greenwich: Place = { latitude: 51.4769, longitude: -0.0005, zone: "Europe/London", name: "Greenwich" };
const oneMinute = 60_000;

/** The state of the page, and all that changes it. */
export class App {
  moon!: Velmora;
  format!: Format;
  view: ViewName = "today";
  places: Place[] = [];
  choices!: Choices;
  /** The moment shown; none follows the clock. */
  private chosenMoment: number | undefined;
  private remembering: ReturnType<typeof setTimeout> | undefined;
  private readonly store = new Store();
  private readonly listeners = new Set<(change: Change) => void>();
  /** What was wrong with the link that the page was opened by. */
  linkFault: { part: string; text: string } | undefined;

  constructor(private readonly surroundings: Surroundings) {}

  get keepsChoices(): boolean {
    return this.store.keeps;
  }

  get place(): Place {
    return this.places[0]!;
  }

  get day(): Day {
    return this.moon.day;
  }

  /** The moment that is shown, of the selected day. */
  get at(): number {
    return this.chosenMoment ?? Math.floor(Date.now() / oneMinute) * oneMinute;
  }

  get followsClock(): boolean {
    return this.chosenMoment === undefined;
  }

  get isRightToLeft(): boolean {
    return isRightToLeft(this.language);
  }

  get language(): ReturnType<typeof languageFor> {
    return this.choices.language === "auto" ? languageFor(navigator.languages) : this.choices.language;
  }

  async start(): Promise<void> {
    const kept = this.kept();
    this.choices = kept.choices;
    let link = this.linkOfAddress();
    const hasNoPlace = kept.places.length === 0 && !link.place;
    this.places = hasNoPlace ? [greenwich] : [...kept.places];
    if (link.place) this.putFirst(link.place);
    if (link.view) this.view = link.view;
    const day = (): Day => link.day ?? nearestKnown(clockAt(Date.now(), this.place.zone).day);

    // The module opens while the first place is looked for.
    const [moon, firstPlace] = await Promise.all([
      this.open(day),
      hasNoPlace ? this.firstPlace() : undefined,
      this.loadTexts(),
    ]);
    if (firstPlace) {
      this.places = [firstPlace];
      moon.select(firstPlace, day());
    }
    this.moon = moon;
    if (link.place && link.place !== this.place) {
      link = this.refused(link.place);
      this.view = "today";
      moon.select(this.place, day());
    }
    this.makeFormat();
    this.takeMoment(link);
    moon.onDayChange(() => this.dayMoved());
    addEventListener("pagehide", () => {
      if (this.remembering !== undefined) this.remember();
    });
    addEventListener("storage", () => void this.changedElsewhere());
  }

  /** Opens the module at the first place that it takes: browsers know more names of time zones than there are. */
  private async open(day: () => Day): Promise<Velmora> {
    try {
      return await this.surroundings.load({
        base: this.surroundings.base,
        ...(this.surroundings.file && { file: this.surroundings.file }),
        settings: this.settings(),
        place: this.place,
        day: day(),
        fontFamily: getComputedStyle(document.body).fontFamily,
      });
    } catch (error) {
      if (!(error instanceof RangeError) || this.place === greenwich) throw error;
      this.places = this.places.length > 1 ? this.places.slice(1) : [greenwich];
      return this.open(day);
    }
  }

  private kept(): Kept {
    return this.store.read((link) => {
      const read = readLink(link, isZone);
      return isFault(read) ? undefined : read.place;
    });
  }

  /** Another window of the page kept something: what is shown here stays, the rest is as it was kept. */
  private async changedElsewhere(): Promise<void> {
    const { choices, places } = this.kept();
    const { place } = this;
    this.choices = choices;
    this.places = [...places];
    this.putFirst(place);
    await this.loadTexts();
    this.settingsChanged();
  }

  /** One of the files that lie with the module. */
  async file(name: string): Promise<ArrayBuffer> {
    const { file, base } = this.surroundings;
    if (file) return file(name);
    const answer = await fetch(base + name);
    if (!answer.ok) throw new Error(`${name}: ${answer.status}`);
    return answer.arrayBuffer();
  }

  /** The city of the zone that the device's clock is in. */
  private async firstPlace(): Promise<Place> {
    const zone = new Intl.DateTimeFormat().resolvedOptions().timeZone;
    const places = (await this.surroundings.json("zones.json").catch(() => ({}))) as Record<string, [number, number, string]>;
    const found = places[zone];
    return found ? { latitude: found[0], longitude: found[1], name: found[2], zone } : greenwich;
  }

  onChange(listener: (change: Change) => void): void {
    this.listeners.add(listener);
  }

  private tell(change: Change): void {
    for (const listener of this.listeners) listener(change);
  }

  go(view: ViewName): void {
    if (view === this.view) return;
    this.remember();
    this.view = view;
    history.pushState(null, "", this.address());
    this.tell("section");
  }

  selectDay(day: Day): void {
    const known = nearestKnown(day);
    if (sameDay(known, this.day)) return;
    if (!this.moon.skyOfDay(known)) return;
    this.moon.selectDay(known);
  }

  /** After the selected day moved, by the page or by a tap in a view: the clock's time of the day stays. */
  private dayMoved(): void {
    if (!sameDay(clockAt(this.at, this.place.zone).day, this.day)) {
      const { minutes } = clockAt(this.at, this.place.zone);
      this.chosenMoment = this.isToday ? undefined : instantOf(this.day, minutes, this.place.zone);
    }
    this.rememberSoon();
    this.tell("day");
  }

  get isToday(): boolean {
    return sameDay(this.day, this.moon.today());
  }

  /** Shows a moment of the selected day. */
  showMoment(at: number): void {
    this.chosenMoment = Math.round(at / oneMinute) * oneMinute;
    this.rememberSoon();
    this.tell("moment");
  }

  /** Today's section at a moment of any day. */
  showInstant(at: number): void {
    this.chosenMoment = at;
    this.view = "today";
    const { day } = clockAt(at, this.place.zone);
    history.pushState(null, "", this.address());
    if (!sameDay(day, this.day)) this.moon.selectDay(day);
    this.tell("section");
  }

  showNow(): void {
    this.chosenMoment = undefined;
    const today = nearestKnown(this.moon.today());
    if (sameDay(today, this.day)) {
      this.remember();
      this.tell("moment");
    } else {
      this.moon.selectDay(today);
    }
  }

  /** The clock went on by a minute. */
  tick(): void {
    if (!this.followsClock) return;
    if (this.isToday) this.tell("moment");
    else this.showNow();
  }

  /** Whether it can be shown. */
  usePlace(place: Place): boolean {
    const day = this.followsClock ? nearestKnown(clockAt(Date.now(), place.zone).day) : this.day;
    if (!this.takes(place, day)) return false;
    this.putFirst(place);
    this.makeFormat();
    this.keep();
    this.remember();
    this.tell("all");
    return true;
  }

  private takes(place: Place, day: Day): boolean {
    try {
      this.moon.select(place, day);
      return true;
    } catch (error) {
      if (!(error instanceof RangeError)) throw error;
      return false;
    }
  }

  forgetPlace(place: Place): void {
    this.places = this.places.filter((one) => one !== place);
    this.keep();
    this.tell("all");
  }

  private putFirst(place: Place): void {
    const same = (one: Place): boolean =>
      one.name === place.name && one.latitude === place.latitude && one.longitude === place.longitude;
    this.places = [place, ...this.places.filter((one) => !same(one))];
  }

  async choose(choices: Partial<Choices>): Promise<void> {
    this.choices = { ...this.choices, ...choices };
    this.keep();
    if (choices.language) await this.loadTexts();
    this.settingsChanged();
  }

  /** After the device changed what "auto" stands for, too. */
  settingsChanged(): void {
    this.moon.configure(this.settings());
    this.makeFormat();
    this.tell("all");
  }

  private keep(): void {
    this.store.write(this.choices, this.places.map((place) => writeLink({ place })));
  }

  private async loadTexts(): Promise<void> {
    const language = this.language;
    const texts = language === "en" ? {} : await this.surroundings.json(`words/${language}.json`).catch((error: unknown) => {
      console.error(error);
      return {};
    });
    setTexts(texts as Record<string, string>);
    document.documentElement.lang = this.language;
    document.documentElement.dir = this.isRightToLeft ? "rtl" : "ltr";
  }

  private settings(): Settings {
    const locale = localeFor(this.language, navigator.languages);
    return {
      locale,
      clock: this.choices.clock === "auto" ? clockOf(locale) : this.choices.clock === "12" ? 12 : 24,
      weekStart: this.choices.weekStart === "auto" ? weekStartOf(locale) : Number(this.choices.weekStart),
      secondCalendar: this.choices.secondCalendar,
      theme: this.theme,
      isTablet: matchMedia("(min-width: 760px) and (min-height: 600px)").matches,
    };
  }

  get theme(): "dark" | "light" {
    if (this.choices.theme !== "auto") return this.choices.theme;
    return matchMedia("(prefers-color-scheme: light)").matches ? "light" : "dark";
  }

  private makeFormat(): void {
    const { locale, clock } = this.moon.settings;
    this.format = new Format(locale, this.place.zone, clock);
  }

  // The address.

  private linkOfAddress(): Link {
    const link = readLink(location.hash, isZone);
    if (!isFault(link)) return link;
    this.linkFault = link;
    return {};
  }

  /** The link of a place that cannot be shown is not followed. */
  private refused({ latitude, longitude, zone, name }: Place): Link {
    this.linkFault = { part: "place", text: [latitude, longitude, zone, name].join(", ") };
    return {};
  }

  private takeMoment(link: Link): void {
    const isNow = link.time === undefined && this.isToday;
    const minutes = link.time ?? clockAt(Date.now(), this.place.zone).minutes;
    this.chosenMoment = isNow ? undefined : instantOf(this.day, minutes, this.place.zone);
  }

  /** The address that shows the same: view, day and place, and the time where it is not the clock's. */
  address(): string {
    const followed = this.followsClock;
    const time = followed ? undefined : clockAt(this.at, this.place.zone).minutes;
    return writeLink({
      view: this.view,
      ...(!followed && { day: this.day }),
      ...(time !== undefined && { time }),
      place: this.place,
    });
  }

  /** Browsers take an address only so often, and are busy with it: of days and times that follow one another
   *  the last is enough. */
  private rememberSoon(): void {
    this.forgetToRemember();
    this.remembering = setTimeout(() => this.remember(), 200);
  }

  private forgetToRemember(): void {
    clearTimeout(this.remembering);
    this.remembering = undefined;
  }

  private remember(): void {
    this.forgetToRemember();
    history.replaceState(null, "", this.address());
  }

  /** The address was changed: by "back", or by hand. */
  followAddress(): void {
    this.forgetToRemember();
    this.linkFault = undefined;
    let link = this.linkOfAddress();
    const day = (place: Place): Day => link.day ?? nearestKnown(clockAt(Date.now(), place.zone).day);
    if (link.place && this.takes(link.place, day(link.place))) {
      this.putFirst(link.place);
    } else {
      if (link.place) link = this.refused(link.place);
      this.moon.select(this.place, day(this.place));
    }
    this.view = link.view ?? "today";
    this.makeFormat();
    this.takeMoment(link);
    this.tell("all");
  }
}

function clockOf(locale: string): 12 | 24 {
  return new Intl.DateTimeFormat(locale, { hour: "numeric" }).resolvedOptions().hour12 ? 12 : 24;
}

interface WeekOfLocale {
  getWeekInfo?: () => { firstDay: number };
  weekInfo?: { firstDay: number };
}

/** Monday where the browser does not tell. */
function weekStartOf(locale: string): number {
  const maximal = new Intl.Locale(locale).maximize() as Intl.Locale & WeekOfLocale;
  const first = (maximal.getWeekInfo?.() ?? maximal.weekInfo)?.firstDay ?? 1;
  return first % 7;
}
