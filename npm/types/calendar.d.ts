/**
 * The phase calendar: its tables of 2000 to 2040 and its fixed rules, made for the pictures of a calendar's days, not
 * for the sky, which the almanac knows.
 */
import type {CivilDate, LoadOptions, Place} from 'velmora';

/** Starts the calendar; once is enough for a program. */
export function load(options?: LoadOptions): Promise<Calendar>;

export interface Calendar {
  /** "major.minor.patch". */
  readonly version: string;
  /** The days of a month, 1 to 12, at the zone. */
  month(zone: string, year: number, month: number): CalendarDay[];
  /** The rise and set record of a day, found by the calendar's own search. */
  riseSet(place: Place, zone: string, date: CivilDate, twilight?: 'civil' | 'nautical' | 'astronomical'): RiseSetRecord;
}

export interface CalendarDay {
  /** Of the month. */
  readonly day: number;
  readonly phase: 'full' | 'firstQuarter' | 'lastQuarter' | 'new' | 'waxingCrescent' | 'waxingGibbous'
    | 'waningGibbous' | 'waningCrescent';
  /** Days from the last new moon, whose own day is 1. */
  readonly age: number;
  /** Number of the day's picture. */
  readonly image?: number;
  /** Lit part of the calendar's disc, 0 to 1, linear between principal phases by design. */
  readonly lit: number;
}

/** Minutes from local midnight, −1 for none, above 1440 on the next day; texts as the calendar shows them. */
export interface RiseSetRecord {
  readonly moonRise: number;
  readonly moonSet: number;
  readonly sunRise: number;
  readonly sunSet: number;
  /** Minutes; 1440 for a Sun that does not set, 0 for one that does not rise. */
  readonly dayLength: number;
  readonly moonRiseText: string;
  readonly moonSetText: string;
  readonly sunRiseText: string;
  readonly sunSetText: string;
  readonly twilightBeginText: string;
  readonly twilightEndText: string;
}
