/**
 * Moon and Sun over any place on Earth, 1900 to 2100. Angles are degrees, azimuths from north to east, distances
 * kilometres. What does not exist, a polar night's sunrise for instance, is undefined. A RangeError says what is
 * wrong with a value, a TypeError that it is of another type.
 */

/** Starts the almanac; once is enough for a program. */
export function load(options?: LoadOptions): Promise<Almanac>;

export interface LoadOptions {
  /** The module where it cannot be fetched from beside this file: the bytes of almanac.wasm, or compiled. */
  readonly wasm?: WebAssembly.Module | ArrayBuffer | ArrayBufferView;
}

/** A Date, or what Temporal calls Instant or ZonedDateTime. */
export type Instant = Date | {readonly epochMilliseconds: number};

/** A day of the Gregorian calendar; a Temporal.PlainDate is one. */
export interface CivilDate {
  readonly year: number;
  /** 1 to 12. */
  readonly month: number;
  readonly day: number;
}

export interface Place {
  /** −90 to 90, north positive. */
  readonly latitude: number;
  /** −180 to 180, east positive. */
  readonly longitude: number;
  /** Metres above the horizon around, 0 to 100,000, which lowers it; 0 if left out. */
  readonly height?: number;
}

export type Body = 'sun' | 'moon';
export type EventKind = 'rise' | 'set' | 'transit' | 'civilDawn' | 'civilDusk' | 'nauticalDawn' | 'nauticalDusk'
  | 'astronomicalDawn' | 'astronomicalDusk';

export interface SkyEvent {
  readonly at: Date;
  readonly body: Body;
  readonly kind: EventKind;
  readonly azimuth: number;
  /** Apparent, of the centre. */
  readonly altitude: number;
}

/** The first event of each kind by name; events of that name again stand in `events` alone. */
export interface NamedEvents {
  readonly sunrise?: Date;
  readonly sunset?: Date;
  readonly sunTransit?: Date;
  readonly moonrise?: Date;
  readonly moonset?: Date;
  readonly moonTransit?: Date;
  readonly civilDawn?: Date;
  readonly civilDusk?: Date;
  readonly nauticalDawn?: Date;
  readonly nauticalDusk?: Date;
  readonly astronomicalDawn?: Date;
  readonly astronomicalDusk?: Date;
}

export type AllDay = 'rises or sets' | 'up' | 'down';

export interface Day extends NamedEvents {
  /** The first instant. */
  readonly start: Date;
  /** The first instant after it. */
  readonly end: Date;
  readonly sun: AllDay;
  readonly moon: AllDay;
  /** Seconds for which the Sun is up. */
  readonly daylight: number;
  /** Seconds for which the Sun's centre is below −18°. */
  readonly darkness: number;
  /** In order of time. */
  readonly events: SkyEvent[];
}

/** When a body counts as risen; as it stands, what national almanac offices print. */
export interface Convention {
  /** The point of the disc that rises: the upper limb if left out. */
  readonly limb?: 'upper' | 'centre' | 'lower';
  /** 0 to 2; 34/60 if left out. */
  readonly horizonRefraction?: number;
  /** 0 to 2; 16/60 if left out. */
  readonly sunSemidiameter?: number;
}

export interface EventOptions {
  readonly convention?: Convention;
}

export interface DayOptions extends EventOptions {
  /** Whether to find dawns and dusks; yes if left out. */
  readonly twilight?: boolean;
  /** Whether to find transits; yes if left out. */
  readonly transits?: boolean;
}

export interface Crossing {
  readonly at: Date;
  readonly azimuth: number;
  readonly isRising: boolean;
}

/** Apparent places of the true equator and equinox of date; right ascensions in hours. */
export interface Position {
  readonly rightAscension: number;
  readonly declination: number;
  /** From the centre of the Earth. */
  readonly distance: number;
  readonly topocentricRightAscension: number;
  readonly topocentricDeclination: number;
  /** From the place. */
  readonly topocentricDistance: number;
  readonly azimuth: number;
  /** Without refraction. */
  readonly altitude: number;
  /** Refracted; below −1° as without. */
  readonly apparentAltitude: number;
  /** Of the disc. */
  readonly semidiameter: number;
}

export interface Illumination {
  /** Lit part of the disc, 0 to 1. */
  readonly fraction: number;
  /** Of the Moon's longitude from the Sun's, 0 to 360: 0 new, 90 first quarter. */
  readonly elongation: number;
  /** Sun, Moon, observer: 0 to 180. */
  readonly phaseAngle: number;
  /** Position angle of the lit limb's middle, from north to east. */
  readonly brightLimbAngle: number;
  /** From the north of the sky to the zenith. */
  readonly parallacticAngle: number;
  /** Of the lit limb's middle from straight up as seen from the place, counterclockwise, 0 to 360. */
  readonly tilt: number;
  readonly isWaxing: boolean;
}

export interface PhaseEvent {
  readonly at: Date;
  readonly phase: 'new' | 'firstQuarter' | 'full' | 'lastQuarter';
}

export interface SeasonEvent {
  readonly at: Date;
  readonly season: 'marchEquinox' | 'juneSolstice' | 'septemberEquinox' | 'decemberSolstice';
}

/** The Moon nearest to the centre of the Earth, or farthest from it. */
export interface Apsis {
  readonly at: Date;
  readonly distance: number;
  readonly isPerigee: boolean;
}

export type EclipseKind = 'total' | 'annular' | 'hybrid' | 'partial' | 'penumbral';

/** An eclipse of the whole Earth. */
export interface Eclipse {
  readonly maximum: Date;
  /** As published: solar covered part of the diameter or ratio of the diameters. */
  readonly magnitude: number;
  /** Least distance of the shadow's axis, equatorial radii, north positive. */
  readonly gamma: number;
  /** The eclipsed one. */
  readonly body: Body;
  readonly kind: EclipseKind;
  /** Number of its series. */
  readonly saros: number;
}

export interface EclipseMoment {
  readonly at: Date;
  /** Apparent, of the eclipsed body's centre. */
  readonly altitude: number;
  readonly azimuth: number;
  /** Whether part of the body is above the horizon. */
  readonly isUp: boolean;
}

export interface EclipseContact extends EclipseMoment {
  /** Solar C1 to C4; lunar P1, U1, U2, U3, U4, P4. */
  readonly name: 'C1' | 'C2' | 'C3' | 'C4' | 'P1' | 'U1' | 'U2' | 'U3' | 'U4' | 'P4';
}

/** An eclipse as it is from a place, above its horizon or below. */
export interface LocalEclipse {
  readonly body: Body;
  /** As seen from there; never hybrid. */
  readonly kind: EclipseKind;
  /** At the maximum there. */
  readonly magnitude: number;
  /** Covered part of the Sun's area, 0 to 1; of a solar eclipse alone. */
  readonly obscuration?: number;
  readonly maximum: EclipseMoment;
  /** In order of time. */
  readonly contacts: EclipseContact[];
  /** Whether something of it can be seen; the fields below are there only then. */
  readonly isVisible: boolean;
  readonly visibleFrom?: Date;
  readonly visibleTo?: Date;
  /** When most of it is seen. */
  readonly best?: EclipseMoment;
  readonly bestMagnitude?: number;
}

export interface Almanac {
  /** "major.minor.patch". */
  readonly version: string;

  /** The civil day at a place whose clocks keep that time zone; undefined where they skipped it whole. */
  day(place: Place, zone: string, date: CivilDate, options?: DayOptions): Day | undefined;
  /** The civil days from `first` to `last`, both included, without those that the clocks skipped. */
  days(place: Place, zone: string, first: CivilDate, last: CivilDate, options?: DayOptions): Day[];
  /** What happens in [from, to). */
  events(place: Place, from: Instant, to: Instant, options?: DayOptions): Day;
  /** The first such event after the instant, within 366 days; undefined if there is none. */
  next(place: Place, body: Body, kind: EventKind, after: Instant, options?: EventOptions): SkyEvent | undefined;
  /** Every passage of the apparent altitude by the body's centre in [from, to). */
  crossings(place: Place, body: Body, altitude: number, from: Instant, to: Instant): Crossing[];

  position(place: Place, body: Body, at: Instant): Position;
  /** The same at each of many instants, several times as fast. */
  positions(place: Place, body: Body, instants: Iterable<Instant>): Position[];
  /** How the Moon is lit. */
  illumination(place: Place, at: Instant): Illumination;
  illuminations(place: Place, instants: Iterable<Instant>): Illumination[];

  /** Principal phases in [from, to). */
  phases(from: Instant, to: Instant): PhaseEvent[];
  /** Beginnings of seasons in [from, to). */
  seasons(from: Instant, to: Instant): SeasonEvent[];
  apsides(from: Instant, to: Instant): Apsis[];
  /** Eclipses whose maximum lies in [from, to). */
  eclipses(from: Instant, to: Instant): Eclipse[];
  /** The eclipse from the place; undefined where the Moon's penumbra never touches it. */
  seenFrom(eclipse: Eclipse, place: Place): LocalEclipse | undefined;

  /** The first instant of a civil day and of the next; undefined where the clocks skipped it whole. */
  civilDay(zone: string, date: CivilDate): {readonly start: Date; readonly end: Date} | undefined;
  /** Seconds by which the zone's clocks are ahead of UTC. */
  offset(zone: string, at: Instant): number;
}
