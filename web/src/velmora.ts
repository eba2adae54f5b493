/**
 * What the page asks of Velmora in WebAssembly. Instants are milliseconds since 1970 as `Date` counts them,
 * angles degrees, azimuths from north by east, lengths CSS pixels ("points"). Years covered: 1900 to 2100 by
 * the almanac, 2000 to 2040 by the calendars (month, year, rise and set, pictures).
 *
 * There is one selection, of place and day, which all views show and every tap on a day changes.
 */

/** Opens the module; its fonts are loaded and it has drawn nothing yet. */
export type LoadVelmora = (options: LoadOptions) => Promise<Velmora>;

export interface LoadOptions {
  /** The module's folder, with a closing "/": velmora.wasm, cities.table, images/, icons/. */
  readonly base: string;
  readonly settings: Settings;
  readonly place: Place;
  readonly day: CivilDate;
  /** Fetches one of those files; by default `fetch(base + name)`. The page that is one file has its own. */
  readonly file?: (name: string) => Promise<ArrayBuffer>;
  /** The CSS font families that the views write in; by default those of the system. */
  readonly fontFamily?: string;
}

export interface Settings {
  /** Language and region as BCP 47 has it: "de-DE", "zh-Hant-TW". */
  readonly locale: string;
  readonly clock: 12 | 24;
  /** The first weekday of the month: 0 is Sunday. */
  readonly weekStart: number;
  readonly secondCalendar: SecondCalendar;
  readonly theme: "dark" | "light";
  /** Larger texts, for a tablet and a desktop. */
  readonly isTablet: boolean;
}

export type SecondCalendar = "none" | "hebrew" | "islamic" | "buddhist" | "japanese" | "chinese" | "indian";

export interface Place {
  readonly latitude: number;
  readonly longitude: number;
  readonly name: string;
  /** IANA name of the zone of its clocks; one that the browser does not know is refused. */
  readonly zone: string;
}

export interface CivilDate {
  readonly year: number;
  /** 1 to 12. */
  readonly month: number;
  readonly day: number;
}

/** Ends what it was answered for: a subscription. */
export type End = () => void;

export interface Velmora {
  readonly version: string;

  /**
   * Throws a RangeError for values that are none; then nothing has changed. All views are to be drawn again.
   */
  configure(settings: Settings): void;
  /**
   * Selects both; throws a RangeError for a place that is none, or a day outside the years of the calendars.
   */
  select(place: Place, day: CivilDate): void;
  selectDay(day: CivilDate): void;
  readonly settings: Settings;
  readonly place: Place;
  readonly day: CivilDate;
  /** Today at the selected place. */
  today(): CivilDate;
  /** After the selected day moved, whoever moved it. */
  onDayChange(listener: (day: CivilDate) => void): End;
  /** A sentence for an `aria-live` region. */
  onAnnouncement(listener: (text: string) => void): End;

  /**
   * Draws on the canvas; into any other element it puts a canvas for each part of the view, so that only those that
   * change are drawn again.
   */
  createView(kind: ViewKind, canvas: HTMLElement, options?: ViewOptions): HostedView;

  /** What happens on the civil day at the place; none for a day that its clocks skipped. */
  skyOfDay(day: CivilDate): DayInTheSky | undefined;
  /** Sun and Moon at the instant, seen from the place; none outside the years covered. */
  moment(at: number): Moment | undefined;
  /** The same at each of the instants, for a curve: apparent altitudes and azimuths in turn. */
  track(body: Body, instants: readonly number[]): readonly HorizontalPosition[];
  /** The next of each of the four phases, in order of time. */
  nextPhases(after: number): readonly PhaseEvent[];
  /** Principal phases in [from, to). */
  phases(from: number, to: number): readonly PhaseEvent[];
  /** The next eclipses of which something is seen from the place, within 20 years. */
  nextEclipses(after: number, count: number): readonly SeenEclipse[];
  /** The phase of the civil day and its place in the lunation; none for a day that the place did not have. */
  calendarDay(day: CivilDate): CalendarDay | undefined;

  /**
   * The words of the almanac in the language set; %1, %2 … are replaced by the parts. English where it has
   * none.
   */
  words(english: string, ...parts: string[]): string;
  /** The same in the plural form for the count, which stands at %1. */
  wordsForCount(english: string, count: number): string;

  /** Cities whose name begins so, most populous first; the first call fetches the table. */
  cities(prefix: string, limit: number): Promise<readonly City[]>;
  /** The city nearest to the coordinates, at most 50 km away. */
  cityNear(latitude: number, longitude: number): Promise<City | undefined>;

  /** Phases and eclipses seen from the place in that year, for a calendar application (RFC 5545). */
  icalendar(year: number): string;
}

export type ViewKind =
  | "month" | "year" | "riseset" | "pictures" | "compass" | "arc" | "disc" | "timeline" | "chart"
  | "night" | "darkness" | "poster";

export interface ViewOptions {
  /** Year: which moons. */
  readonly phase?: "full" | "new";
  /** Compass, arc and disc: the moment shown; by default the selected day's noon. */
  readonly at?: number;
  /** Compass: the direction that is up. */
  readonly heading?: number;
  /** Disc: turned as it is seen from the place at the moment. */
  readonly isTilted?: boolean;
  /** Month: without rings around days with an eclipse. */
  readonly hidesEclipses?: boolean;
}

/** A view on a canvas. It draws nothing by itself: ask in an animation frame after `onNeedsDisplay`. */
export interface HostedView {
  readonly kind: ViewKind;
  readonly canvas: HTMLElement;

  /**
   * Sets the size in points and the pixels a point; sizes the canvas too. The height of rise and set is that of
   * its list, whatever is given: scroll the canvas.
   */
  resize(width: number, height: number, scale: number): void;
  readonly size: Size;
  setOptions(options: ViewOptions): void;

  /** Draws the view if it has changed, else nothing. */
  draw(): void;
  /** Draws the view as of another day, on another canvas: the month that comes while it is pulled. */
  drawDay(day: CivilDate, canvas: HTMLCanvasElement): void;
  readonly needsDisplay: boolean;
  /** Once after each change, by whatever cause; also when pictures have arrived. */
  onNeedsDisplay(listener: () => void): End;
  /** Resolves when the pictures of what the view shows now are there, or could not be fetched. */
  ready(): Promise<void>;

  /** A finger, in points from the canvas's top left. Draw the view before its first touch. */
  touchBegan(x: number, y: number): void;
  touchMoved(x: number, y: number): void;
  touchEnded(x: number, y: number): void;
  touchCancelled(): void;

  /** Rise and set: how far down to scroll so that the selected day is seen; else 0. */
  readonly scrollOffset: number;
  /** What a screen reader stops at, in reading order, of what the view shows now. */
  elements(): readonly ViewElement[];
  /** Does one of the actions of an element, both by number, of the elements last answered. */
  perform(element: number, action: number): void;

  /** The view as a file, on the theme's background. */
  svg(): string;
  png(scale: number): Promise<Blob>;

  /** Lets go of it: nothing is called after. */
  close(): void;
}

export interface Size {
  readonly width: number;
  readonly height: number;
}

export interface Frame extends Size {
  readonly x: number;
  readonly y: number;
}

export interface ViewElement {
  readonly frame: Frame;
  readonly label: string;
  readonly value: string;
  readonly hint: string;
  readonly isButton: boolean;
  readonly actions: readonly string[];
  /** Of a month's, a list's and a year's elements: the day they stand for. */
  readonly day?: CivilDate;
  readonly isSelected: boolean;
}

export type Body = "sun" | "moon";

export interface HorizontalPosition {
  readonly azimuth: number;
  /** Refracted, as it is seen. */
  readonly altitude: number;
}

export type SkyEventKind =
  | "rise" | "set" | "transit" | "civilDawn" | "civilDusk" | "nauticalDawn" | "nauticalDusk" | "astronomicalDawn"
  | "astronomicalDusk";

export interface SkyEvent extends HorizontalPosition {
  readonly at: number;
  readonly body: Body;
  readonly kind: SkyEventKind;
}

export interface DayInTheSky {
  /** First instant and the first after it. */
  readonly start: number;
  readonly end: number;
  /** Whether a body stays up, or down, all day. */
  readonly sun: "rises or sets" | "up" | "down";
  readonly moon: "rises or sets" | "up" | "down";
  /** Seconds for which the Sun is up, and for which its centre is below −18°. */
  readonly daylight: number;
  readonly darkness: number;
  /** In order of time. */
  readonly events: readonly SkyEvent[];
}

export interface BodyPosition extends HorizontalPosition {
  /** Kilometres from the place. */
  readonly distance: number;
  /** Of the disc. */
  readonly semidiameter: number;
}

export interface Moment {
  readonly at: number;
  readonly sun: BodyPosition;
  readonly moon: BodyPosition;
  /** Lit part of the Moon's disc, 0 to 1. */
  readonly fraction: number;
  readonly isWaxing: boolean;
  /** Of the Moon's longitude from the Sun's: 0 new, 90 first quarter. */
  readonly elongation: number;
  /** Of the lit limb's middle from straight up as seen from the place, counterclockwise. */
  readonly tilt: number;
  /** Of the Moon's north from straight up, counterclockwise: that of the ecliptic's pole, at most 1.6° from it. */
  readonly north: number;
  /** By the elongation; "new" and "full" and the quarters on the civil day of the principal phase alone. */
  readonly phase: PhaseName;
}

export type PrincipalPhase = "new" | "firstQuarter" | "full" | "lastQuarter";
export type PhaseName = PrincipalPhase | "waxingCrescent" | "waxingGibbous" | "waningGibbous" | "waningCrescent";

export interface PhaseEvent {
  readonly at: number;
  readonly phase: PrincipalPhase;
}

export interface CalendarDay {
  readonly phase: PhaseName;
  /** Days from the last new moon, whose own day is 1. */
  readonly age: number;
}

export type EclipseKind = "total" | "annular" | "partial" | "penumbral";

export interface SeenEclipse {
  readonly body: Body;
  /** As seen from the place. */
  readonly kind: EclipseKind;
  /** First and last instant at which something is seen, and that at which most is. */
  readonly begin: number;
  readonly best: number;
  readonly end: number;
  /** The geometric one; at another instant than the best where the body is down then. */
  readonly maximum: number;
  /** Where the body stands at its best. */
  readonly altitude: number;
  readonly azimuth: number;
  /** At its best; solar: the covered part of the Sun's diameter, lunar: of the Moon's in the shadow. */
  readonly magnitude: number;
  /** Solar: covered part of the Sun's area at the maximum; lunar 0. */
  readonly obscuration: number;
  readonly contacts: readonly EclipseContact[];
  /** The sky at its best. */
  readonly discs: EclipseDiscs;
}

export interface EclipseContact {
  readonly name: "C1" | "C2" | "C3" | "C4" | "P1" | "U1" | "U2" | "U3" | "U4" | "P4";
  readonly at: number;
  readonly isUp: boolean;
}

/**
 * What covers the eclipsed disc: the Moon, or the Earth's shadow. In radii of the eclipsed disc, whose centre
 * is (0, 0); x to the right and y downwards as seen from the place, the zenith up.
 */
export interface EclipseDiscs {
  readonly x: number;
  readonly y: number;
  /** Of the Moon, or of the umbra. */
  readonly radius: number;
  /** Of the penumbra; none of a solar eclipse. */
  readonly penumbra?: number;
}

export interface City extends Place {
  readonly region: string;
  /** Two letters. */
  readonly country: string;
}
