/* Rise, set, transit and twilight of one day in Helsinki, and the Moon as the day begins, in C. */
#include <stdio.h>
#include <stdlib.h>
#include <time.h>

#include <velmora/c/velmora.h>

static const char* const bodies[] = {"Sun", "Moon"};
static const char* const kinds[] = {"rise", "set", "transit", "civil dawn", "civil dusk", "nautical dawn",
                                    "nautical dusk", "astronomical dawn", "astronomical dusk"};

static void check(velmora_status status) {
  if (status == VELMORA_OK) return;
  fprintf(stderr, "day-in-c: %s\n", velmora_message());
  exit(1);
}

/* "04:54" on the zone's clocks. */
static void print_time(const velmora_zone* zone, double at) {
  int32_t offset;
  check(velmora_zone_offset(zone, at, &offset));
  const time_t local = (time_t)(at + offset);
  const struct tm* parts = gmtime(&local);
  printf("%02d:%02d", parts->tm_hour, parts->tm_min);
}

static void print_day(const velmora_place* place, const velmora_zone* zone, velmora_date date) {
  velmora_day day;
  velmora_event events[32];
  size_t days, count;
  check(velmora_days(place, zone, date, date, VELMORA_WITH_TWILIGHT | VELMORA_WITH_TRANSITS, NULL, &day, 1,
                     &days, events, 32, &count));
  for (size_t i = 0; i < count; ++i) {
    print_time(zone, events[i].at);
    printf("  %s %s, azimuth %.1f\n", bodies[events[i].body], kinds[events[i].kind], events[i].azimuth);
  }
  printf("daylight %.0f min, astronomical darkness %.0f min\n", day.daylight / 60, day.darkness / 60);
}

static void print_moon(const velmora_place* place, double at) {
  velmora_position moon;
  velmora_illumination lit;
  check(velmora_positions(place, VELMORA_MOON, &at, 1, &moon));
  check(velmora_illuminations(place, &at, 1, &lit));
  printf("Moon %.1f high at azimuth %.1f, %.0f km away, %.0f %% lit\n", moon.apparent_altitude, moon.azimuth,
         moon.topocentric_distance, 100 * lit.fraction);
}

int main(void) {
  const velmora_place place = {60.17, 24.94, 0};
  const velmora_date date = {2024, 6, 21};
  velmora_zone* zone;
  check(velmora_zone_open("Europe/Helsinki", &zone));
  print_day(&place, zone, date);
  double start, end;
  check(velmora_civil_day(zone, date, &start, &end));
  print_moon(&place, start);
  velmora_zone_close(zone);
  return 0;
}
