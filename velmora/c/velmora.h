/**
 * Velmora in C: the one interface that every other language uses.
 *
 * Every operation may be called from any thread; no result depends on earlier calls, but for the folder that
 * velmora_set_resources() has set. What an operation fills belongs to the caller; only a zone is an object of
 * the library's own, opened and closed. Structs are plain and only grow by new operations, never by new
 * fields.
 *
 * An operation returns VELMORA_OK or says by its status what was wrong, and then by velmora_message() in
 * words; what it would have filled is then left as it was. A number that does not exist is NaN, an instant
 * that does not exist likewise.
 *
 * Instants are seconds since 1970-01-01T00:00:00Z without leap seconds (as time_t, fractions included),
 * angles degrees, longitudes east positive, azimuths from north to east. The years 1900 to 2100 are covered.
 *
 * Lists: an operation that fills a list takes room for `capacity` items and sets `count` to how many there
 * are. Where that is more than the room, the first `capacity` are filled and the status is VELMORA_MORE; to
 * ask only for the count, give a null pointer and 0.
 */
#ifndef VELMORA_C_VELMORA_H
#define VELMORA_C_VELMORA_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(_WIN32)
#define VELMORA_API
#else
#define VELMORA_API __attribute__((visibility("default")))
#endif

/** How an operation ended. */
typedef enum velmora_status {
  VELMORA_OK = 0,
  VELMORA_MORE = 1,         /**< the list is longer than the room given; what fits is filled */
  VELMORA_NONE = 2,         /**< what was asked for does not exist: no such event, no such day at the place */
  VELMORA_BAD_ARGUMENT = 3, /**< a null pointer, a number out of its range, an unknown zone */
  VELMORA_OUT_OF_YEARS = 4, /**< an instant or day outside the years that are covered */
  VELMORA_NO_DATA = 5,      /**< a table of the library's resources cannot be read */
  VELMORA_FAILED = 6        /**< no memory, or another failure of the system */
} velmora_status;

/** What was wrong in this thread's last operation that did not succeed, in English, for people; never null.
 */
VELMORA_API const char* velmora_message(void);

/** The library's version, "major.minor.patch". */
VELMORA_API const char* velmora_version(void);

/* ---- Places and zones ------------------------------------------------------------------------------- */

/** A point of the Earth. */
typedef struct velmora_place {
  double latitude;  /**< -90..90, north positive */
  double longitude; /**< -180..180, east positive */
  double height;    /**< metres above the horizon around, 0..100000: lowers the horizon by the dip */
} velmora_place;

/** A time zone. Immutable; one object may be used by many threads. */
typedef struct velmora_zone velmora_zone;

/** Opens the zone with that name of the system's database ("Europe/Helsinki"), "UTC", or "GMT+hh:mm". */
VELMORA_API velmora_status velmora_zone_open(const char* name, velmora_zone** zone);
/** Gives a zone back; null is allowed. */
VELMORA_API void velmora_zone_close(velmora_zone* zone);
/** Seconds by which the zone's clocks are ahead of UTC at the instant. */
VELMORA_API velmora_status velmora_zone_offset(const velmora_zone* zone, double at, int32_t* seconds);

/** A day on the calendar (Gregorian). */
typedef struct velmora_date {
  int32_t year;  /**< 1900..2100 */
  int32_t month; /**< 1..12 */
  int32_t day;   /**< 1 to 31 */
} velmora_date;

/**
 * The first instant of a civil day and the next day's, 23, 24, 24.5 or 25 hours later. VELMORA_NONE for a day
 * that the zone's clocks skipped whole.
 */
VELMORA_API velmora_status velmora_civil_day(const velmora_zone* zone, velmora_date date, double* start,
                                             double* end);

/** A city of the shipped table, texts in UTF-8 and zero-terminated. */
typedef struct velmora_city {
  double latitude;  /**< degrees, north positive */
  double longitude; /**< degrees, east positive */
  int64_t people;   /**< how many live there; 0 where that is unknown */
  char name[128];   /**< its own: "Portland" */
  char region[128]; /**< state or province, in English: "Maine"; may be empty */
  char country[8];  /**< two letters: "US" */
  char zone[64];    /**< of its clocks: "America/New_York" */
} velmora_city;

/**
 * The cities of that name, freely spelled, the most populous first: "Portland", "Portland, Maine", "Kiev".
 * An empty list where there is none.
 */
VELMORA_API velmora_status velmora_cities(const char* name, velmora_city* cities, size_t capacity,
                                          size_t* count);

/* ---- Events of a day -------------------------------------------------------------------------------- */

typedef enum velmora_body { VELMORA_SUN = 0, VELMORA_MOON = 1 } velmora_body;

typedef enum velmora_event_kind {
  VELMORA_RISE = 0,
  VELMORA_SET = 1,
  VELMORA_TRANSIT = 2,
  VELMORA_CIVIL_DAWN = 3,
  VELMORA_CIVIL_DUSK = 4,
  VELMORA_NAUTICAL_DAWN = 5,
  VELMORA_NAUTICAL_DUSK = 6,
  VELMORA_ASTRONOMICAL_DAWN = 7,
  VELMORA_ASTRONOMICAL_DUSK = 8
} velmora_event_kind;

typedef enum velmora_all_day {
  VELMORA_NOT_ALL_DAY = 0,
  VELMORA_UP_ALL_DAY = 1,
  VELMORA_DOWN_ALL_DAY = 2
} velmora_all_day;

/** Which events to find besides rise and set: a sum of these. */
enum { VELMORA_RISE_AND_SET = 0, VELMORA_WITH_TWILIGHT = 1, VELMORA_WITH_TRANSITS = 2 };

/** Something that a body does. */
typedef struct velmora_event {
  double at;       /**< the instant */
  int32_t body;    /**< velmora_body */
  int32_t kind;    /**< velmora_event_kind */
  double azimuth;  /**< from north to east */
  double altitude; /**< apparent (refracted), of the centre */
} velmora_event;

/** What happens in [start, end). Its events stand in the list filled beside it. */
typedef struct velmora_day {
  double start;         /**< its first instant */
  double end;           /**< the first instant after it */
  int32_t sun;          /**< velmora_all_day */
  int32_t moon;         /**< velmora_all_day */
  double daylight;      /**< seconds for which the Sun is up */
  double darkness;      /**< seconds for which the Sun's centre is below -18 degrees */
  uint64_t first_event; /**< number of its first event in the list */
  uint64_t event_count; /**< how many events it has */
} velmora_day;

/** When a body counts as risen. An operation that is given null takes what national almanac offices print. */
typedef struct velmora_convention {
  int32_t limb;              /**< 0 upper, 1 centre, 2 lower */
  int32_t reserved;          /**< 0 */
  double horizon_refraction; /**< degrees at the horizon, 0..2; usually 34/60 */
  double sun_semidiameter;   /**< degrees, 0..2; usually 16/60 */
} velmora_convention;

/** The events of [from, to), of any length but 0. `day` may be null. */
VELMORA_API velmora_status velmora_events(const velmora_place* place, double from, double to, uint32_t choice,
                                          const velmora_convention* convention, velmora_day* day,
                                          velmora_event* events, size_t capacity, size_t* count);

/**
 * The civil days from `first` to `last`, both included; those that the zone's clocks skipped are left out.
 * VELMORA_OUT_OF_YEARS where a part of one lies in the UTC of 1899 or 2101.
 * Two lists: a day's events stand in `events` from its `first_event` on.
 */
VELMORA_API velmora_status velmora_days(const velmora_place* place, const velmora_zone* zone,
                                        velmora_date first, velmora_date last, uint32_t choice,
                                        const velmora_convention* convention, velmora_day* days,
                                        size_t day_capacity, size_t* day_count, velmora_event* events,
                                        size_t event_capacity, size_t* event_count);

/** The day of a place among many; instants are NaN where there is no such event. */
typedef struct velmora_place_day {
  double sun_rise;  /**< first sunrise */
  double sun_set;   /**< first sunset */
  double moon_rise; /**< first moonrise */
  double moon_set;  /**< first moonset */
  double daylight;  /**< seconds for which the Sun is up */
  double darkness;  /**< seconds for which the Sun is below -18 degrees */
  int32_t sun;      /**< velmora_all_day */
  int32_t moon;     /**< velmora_all_day */
} velmora_place_day;

/**
 * What happens in [from, to) at each of `count` places, a map of the world for instance, shared among that
 * many threads of the operation's own, 1 to 1024 (1: the caller's alone).
 */
VELMORA_API velmora_status velmora_at_places(const velmora_place* places, size_t count, double from,
                                             double to, const velmora_convention* convention,
                                             uint32_t threads, velmora_place_day* days);

/** The first such event after the instant, within 366 days and the years covered; VELMORA_NONE if there is
 * none.
 */
VELMORA_API velmora_status velmora_next(const velmora_place* place, int32_t body, int32_t kind, double after,
                                        const velmora_convention* convention, velmora_event* event);

/** A passage of an altitude. */
typedef struct velmora_crossing {
  double at;         /**< the instant */
  double azimuth;    /**< from north to east */
  int32_t is_rising; /**< 1 upward, 0 downward */
  int32_t reserved;  /**< 0, for later */
} velmora_crossing;

/** Every passage of the apparent altitude, -90..90, by the body's centre in [from, to). */
VELMORA_API velmora_status velmora_crossings(const velmora_place* place, int32_t body, double altitude,
                                             double from, double to, velmora_crossing* crossings,
                                             size_t capacity, size_t* count);

/* ---- Positions -------------------------------------------------------------------------------------- */

/** Where a body stands. Apparent places of the true equator and equinox of date; right ascensions in hours.
 */
typedef struct velmora_position {
  double right_ascension;             /**< hours, geocentric */
  double declination;                 /**< geocentric */
  double distance;                    /**< from the centre of the Earth, kilometres */
  double topocentric_right_ascension; /**< hours, from the place */
  double topocentric_declination;     /**< from the place */
  double topocentric_distance;        /**< from the place, kilometres */
  double azimuth;                     /**< from north to east */
  double altitude;                    /**< without refraction */
  double apparent_altitude;           /**< refracted; below -1 as without */
  double semidiameter;                /**< of the disc, degrees */
} velmora_position;

/** The body's position at each of `count` instants; every field NaN where one is not covered. */
VELMORA_API velmora_status velmora_positions(const velmora_place* place, int32_t body, const double* at,
                                             size_t count, velmora_position* positions);

/** How the Moon is lit. */
typedef struct velmora_illumination {
  double fraction;          /**< lit part of the disc, 0..1 */
  double elongation;        /**< of the Moon's longitude from the Sun's, 0..360: 0 new, 90 first quarter */
  double phase_angle;       /**< Sun, Moon, observer: 0..180 */
  double bright_limb_angle; /**< position angle of the lit limb's middle, from north to east */
  double parallactic_angle; /**< from the north of the sky to the zenith */
  double tilt;       /**< of the lit limb from straight up as seen from the place, counterclockwise, 0..360 */
  int32_t is_waxing; /**< 1 or 0 */
  int32_t reserved;  /**< 0, for later */
} velmora_illumination;

/** How the Moon is lit at each of `count` instants; every number NaN where one is not covered. */
VELMORA_API velmora_status velmora_illuminations(const velmora_place* place, const double* at, size_t count,
                                                 velmora_illumination* illuminations);

/* ---- Phases, apsides, seasons ----------------------------------------------------------------------- */

/** An instant and what it is of its kind. */
typedef struct velmora_moment {
  double at;        /**< the instant */
  int32_t kind;     /**< which one, as the operation says */
  int32_t reserved; /**< 0, for later */
} velmora_moment;

/** Principal phases in [from, to); kind: 0 new moon, 1 first quarter, 2 full moon, 3 last quarter. */
VELMORA_API velmora_status velmora_phases(double from, double to, velmora_moment* phases, size_t capacity,
                                          size_t* count);

/** Beginnings of seasons; kind: 0 March equinox, 1 June solstice, 2 September equinox, 3 December solstice.
 */
VELMORA_API velmora_status velmora_seasons(double from, double to, velmora_moment* seasons, size_t capacity,
                                           size_t* count);

/** The Moon nearest to the centre of the Earth (is_perigee 1) or farthest from it (0). */
typedef struct velmora_apsis {
  double at;          /**< the instant */
  double distance;    /**< kilometres */
  int32_t is_perigee; /**< 1 at the perigee, 0 at the apogee */
  int32_t reserved;   /**< 0, for later */
} velmora_apsis;

VELMORA_API velmora_status velmora_apsides(double from, double to, velmora_apsis* apsides, size_t capacity,
                                           size_t* count);

/* ---- Eclipses --------------------------------------------------------------------------------------- */

typedef enum velmora_eclipse_kind {
  VELMORA_TOTAL = 0,
  VELMORA_ANNULAR = 1,
  VELMORA_HYBRID = 2,
  VELMORA_PARTIAL = 3,
  VELMORA_PENUMBRAL = 4
} velmora_eclipse_kind;

/** An eclipse of the whole Earth. */
typedef struct velmora_eclipse {
  double maximum;   /**< when it is greatest */
  double magnitude; /**< as published: solar covered part of the diameter or ratio of the diameters */
  double gamma;     /**< least distance of the shadow's axis, equatorial radii, north positive */
  int32_t body;     /**< the eclipsed one: velmora_body */
  int32_t kind;     /**< velmora_eclipse_kind */
  int32_t saros;    /**< number of its series */
  int32_t reserved; /**< 0, for later */
} velmora_eclipse;

/** The eclipses whose maximum lies in [from, to). */
VELMORA_API velmora_status velmora_eclipses(double from, double to, velmora_eclipse* eclipses,
                                            size_t capacity, size_t* count);

/** Solar C1 to C4 are 0 to 3; lunar P1, U1, U2, U3, U4, P4 are 4 to 9. */
typedef enum velmora_contact {
  VELMORA_C1,
  VELMORA_C2,
  VELMORA_C3,
  VELMORA_C4,
  VELMORA_P1,
  VELMORA_U1,
  VELMORA_U2,
  VELMORA_U3,
  VELMORA_U4,
  VELMORA_P4
} velmora_contact;

/** A moment of an eclipse at a place; `at` is NaN where there is none. */
typedef struct velmora_eclipse_moment {
  double at;       /**< the instant */
  double altitude; /**< apparent, of the eclipsed body's centre */
  double azimuth;  /**< from north to east */
  int32_t is_up;   /**< 1 if part of the body is above the horizon, else 0 */
  int32_t contact; /**< velmora_contact; -1 where it is none */
} velmora_eclipse_moment;

/** An eclipse as it is from a place, above its horizon or below. */
typedef struct velmora_local_eclipse {
  int32_t body;                       /**< the eclipsed one: velmora_body */
  int32_t kind;                       /**< as seen from there; never hybrid */
  double magnitude;                   /**< at the maximum there, as published */
  double obscuration;                 /**< solar: covered part of the disc's area, 0..1; lunar NaN */
  velmora_eclipse_moment maximum;     /**< when it is greatest */
  velmora_eclipse_moment contacts[6]; /**< in time order; those that there are not have no instant */
  int32_t contact_count;              /**< how many of them there are */
  int32_t is_visible;                 /**< 1 if something of it can be seen */
  double visible_from;         /**< first instant at which something can be seen; NaN where nothing is */
  double visible_to;           /**< the last one */
  velmora_eclipse_moment best; /**< when most of it is seen */
  double best_magnitude;       /**< NaN where nothing is */
} velmora_local_eclipse;

/** The eclipse from the place; VELMORA_NONE where the Moon's penumbra never touches it. */
VELMORA_API velmora_status velmora_seen_from(const velmora_eclipse* eclipse, const velmora_place* place,
                                             velmora_local_eclipse* local);

/* ---- The phase calendar ------------------------------------------------------------------------------ */
/* The calendar's fixed rules, years 2000 to 2040: made for the pictures of a calendar's days, not for the
 * sky. */

/** The folder of the library's tables; null goes back to where it was installed. */
VELMORA_API velmora_status velmora_set_resources(const char* folder);

/** One day of the phase calendar. */
typedef struct velmora_calendar_day {
  int32_t day; /**< of the month */
  /** 0 full, 1 first quarter, 2 last quarter, 3 new; between them 4 waxing crescent, 5 waxing gibbous, 6
   * waning gibbous, 7 waning crescent. */
  int32_t phase;
  int32_t moon_age; /**< days from the last new moon, whose own day is 1 */
  int32_t image;    /**< number of the day's picture; -1 for none */
  double lit;       /**< lit part of the calendar's disc, 0..1, linear between principal phases by design */
} velmora_calendar_day;

/** The days of a month at the zone. */
VELMORA_API velmora_status velmora_calendar_month(const velmora_zone* zone, int32_t year, int32_t month,
                                                  velmora_calendar_day* days, size_t capacity, size_t* count);

/** The calendar's rise and set record of a day, found by its fixed search. Minutes from local midnight, -1
 * where there is none; a set of the next day may lie above 1440. */
typedef struct velmora_rise_set_record {
  int32_t moon_rise;  /**< first moonrise */
  int32_t moon_set;   /**< first moonset */
  int32_t sun_rise;   /**< first sunrise */
  int32_t sun_set;    /**< first sunset */
  int32_t day_length; /**< minutes, sunset minus sunrise; no set counts as 1440, no rise as 0 */
  int32_t reserved;   /**< 0, for later */
  /** Clock texts "05:48", "05:48 **" of the next day, "--:--" or "--" for none; zero-terminated. */
  char moon_rise_text[16];      /**< moonrise */
  char moon_set_text[16];       /**< moonset */
  char sun_rise_text[16];       /**< sunrise */
  char sun_set_text[16];        /**< sunset */
  char twilight_begin_text[16]; /**< dawn */
  char twilight_end_text[16];   /**< dusk */
} velmora_rise_set_record;

/** The record of a day; twilight: 0 civil, 1 nautical, 2 astronomical. */
VELMORA_API velmora_status velmora_rise_set(const velmora_place* place, const velmora_zone* zone,
                                            velmora_date date, int32_t twilight,
                                            velmora_rise_set_record* record);

#ifdef __cplusplus
}
#endif

#endif
