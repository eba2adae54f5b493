/*
 * Writes native.json: answers of the library as it is on this machine, for the tests in WebAssembly to
 * compare with.
 *
 *   cc -I. npm/test/make-native.c -o build/make-native -Lbuild/dev/velmora -lvelmora
 * -Wl,-rpath,build/dev/velmora build/make-native >npm/test/native.json
 */
#include <stdio.h>
#include <stdlib.h>

#include <velmora/c/velmora.h>

enum { room = 64, places = 5, days = 40, instants = 60 };

static const velmora_place place_of[places] = {
    {60.17, 24.94, 0}, {69.65, 18.96, 10}, {-33.87, 151.21, 0}, {0.5, -78.5, 2850}, {-77.85, 166.67, 0}};
static const char* const zone_of[places] = {"Europe/Helsinki", "Europe/Oslo", "Australia/Sydney",
                                            "America/Guayaquil", "Antarctica/McMurdo"};

static const char* separator = "";

static void check(velmora_status status) {
  if (status == VELMORA_OK) return;
  fprintf(stderr, "%s\n", velmora_message());
  exit(1);
}

static void begin(const char* name) {
  printf("\"%s\": [", name);
  separator = "\n";
}

/* A row of numbers. */
static void row(int count, const double* numbers) {
  printf("%s[", separator);
  for (int i = 0; i < count; ++i) printf("%s%.17g", i > 0 ? ", " : "", numbers[i]);
  printf("]");
  separator = ",\n";
}

static void write_days(int place, velmora_zone* zone) {
  for (int k = 0; k < days; ++k) {
    const velmora_date date = {1972 + 3 * k, 1 + (7 * k) % 12, 1 + (11 * k) % 28};
    velmora_day day;
    velmora_event events[room];
    size_t day_count, count;
    check(velmora_days(&place_of[place], zone, date, date, VELMORA_WITH_TWILIGHT | VELMORA_WITH_TRANSITS,
                       NULL, &day, 1, &day_count, events, room, &count));
    row(9, (double[]){place, date.year, date.month, date.day, day.start, day.daylight, day.darkness, day.sun,
                      (double)count});
    for (size_t i = 0; i < count; ++i) {
      row(5, (double[]){events[i].at, events[i].body, events[i].kind, events[i].azimuth, events[i].altitude});
    }
  }
}

static void write_positions(int place) {
  for (int k = 0; k < instants; ++k) {
    const double at = -2.2e9 + k * 1.05e8 + place * 12345.678;
    for (int body = VELMORA_SUN; body <= VELMORA_MOON; ++body) {
      velmora_position p;
      check(velmora_positions(&place_of[place], body, &at, 1, &p));
      row(13, (double[]){place, at, body, p.right_ascension, p.declination, p.distance,
                         p.topocentric_right_ascension, p.topocentric_declination, p.topocentric_distance,
                         p.azimuth, p.altitude, p.apparent_altitude, p.semidiameter});
    }
  }
}

static void write_eclipses(void) {
  velmora_eclipse eclipses[room];
  size_t count;
  check(velmora_eclipses(1.7e9, 2.0e9, eclipses, room, &count));
  for (size_t i = 0; i < count; ++i) {
    velmora_local_eclipse local;
    const velmora_status seen = velmora_seen_from(&eclipses[i], &place_of[0], &local);
    const int is_visible = seen == VELMORA_OK && local.is_visible;
    row(7, (double[]){eclipses[i].maximum, eclipses[i].magnitude, eclipses[i].body, eclipses[i].kind,
                      is_visible, is_visible ? local.best.at : 0, is_visible ? local.best_magnitude : 0});
  }
}

static void write_months(int place, velmora_zone* zone) {
  for (int month = 1; month <= 12; ++month) {
    velmora_calendar_day all[room];
    size_t count;
    check(velmora_calendar_month(zone, 2003 + 3 * month, month, all, room, &count));
    for (size_t i = 0; i < count; ++i) {
      row(8, (double[]){place, 2003 + 3 * month, month, all[i].day, all[i].phase, all[i].moon_age,
                        all[i].image, all[i].lit});
    }
  }
}

static void write_records(int place, velmora_zone* zone) {
  for (int k = 0; k < 365; ++k) {
    const velmora_date date = {2001 + k % 39, 1 + k % 12, 1 + k % 28};
    velmora_rise_set_record r;
    check(velmora_rise_set(&place_of[place], zone, date, k % 3, &r));
    row(10, (double[]){place, date.year, date.month, date.day, k % 3, r.moon_rise, r.moon_set, r.sun_rise,
                       r.sun_set, r.day_length});
  }
}

int main(void) {
  velmora_zone* zones[places];
  for (int i = 0; i < places; ++i) check(velmora_zone_open(zone_of[i], &zones[i]));
  printf("{");
  begin("days");
  for (int i = 0; i < places; ++i) write_days(i, zones[i]);
  printf("],\n");
  begin("positions");
  for (int i = 0; i < places; ++i) write_positions(i);
  printf("],\n");
  begin("eclipses");
  write_eclipses();
  printf("],\n");
  begin("months");
  for (int i = 0; i < places; ++i) write_months(i, zones[i]);
  printf("],\n");
  begin("records");
  for (int i = 0; i < places; ++i) write_records(i, zones[i]);
  printf("]}\n");
  for (int i = 0; i < places; ++i) velmora_zone_close(zones[i]);
}
