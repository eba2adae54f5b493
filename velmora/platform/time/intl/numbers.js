// Numbers and days of other calendars by the engine's own Intl.
mergeInto(LibraryManager.library, {
  // Without fraction digits (−1) an integer without groups, else a grouped decimal with so many at most.
  $velmoraNumberFormat__deps: ['$velmoraKeep', '$velmoraTag'],
  $velmoraNumberFormat: function(identifier, fractionDigits) {
    return velmoraKeep('number ' + fractionDigits + ' ' + identifier, function() {
      return new Intl.NumberFormat(velmoraTag(identifier), {
        useGrouping: fractionDigits >= 0,
        maximumFractionDigits: Math.max(0, fractionDigits),
        roundingMode: 'halfEven',
      });
    });
  },

  // An integer as a text, so that none is too large.
  velmora_intl_integer_text__deps: ['$velmoraNumberFormat'],
  velmora_intl_integer_text: function(identifier, fractionDigits, number) {
    var format = velmoraNumberFormat(UTF8ToString(identifier), fractionDigits);
    return allocateUTF8(format.format(BigInt(UTF8ToString(number))));
  },

  velmora_intl_number_text__deps: ['$velmoraNumberFormat'],
  velmora_intl_number_text: function(identifier, fractionDigits, number) {
    return allocateUTF8(velmoraNumberFormat(UTF8ToString(identifier), fractionDigits).format(number));
  },

  // The day of the month that the day of a count since 1970 has in a calendar of Unicode's name.
  velmora_intl_alternate_day__deps: ['$velmoraKeep'],
  velmora_intl_alternate_day: function(calendar, dayCount) {
    var name = UTF8ToString(calendar);
    var format = velmoraKeep('calendar ' + name, function() {
      return new Intl.DateTimeFormat('en', {
        calendar: name, numberingSystem: 'latn', timeZone: 'UTC', year: 'numeric', month: 'numeric', day: 'numeric',
      });
    });
    var parts = format.formatToParts((dayCount + 0.5) * 86400000);  // noon, away from both midnights
    return Number(parts.find(function(part) { return part.type == 'day'; }).value);
  },
});
