// Dates written by Unicode's patterns with the names and digits of a locale.
mergeInto(LibraryManager.library, {
  $velmoraOffsetText: function(field, offset) {
    var size = Math.abs(offset), sign = offset < 0 ? '-' : '+';
    var hours = Math.floor(size / 3600), minutes = Math.floor(size / 60) % 60;
    var two = function(number) { return String(number).padStart(2, '0'); };
    var isIso = field.letter == 'X' || field.letter == 'x', isLong = field.count == 5;
    if ((field.letter == 'X' || isLong) && offset == 0) return 'Z';
    if (isIso && field.count == 1) return sign + two(hours) + (minutes ? two(minutes) : '');
    if (isIso || isLong) return sign + two(hours) + (field.count % 2 ? ':' : '') + two(minutes);
    if (field.letter == 'Z' && field.count < 4) return sign + two(hours) + two(minutes);
    if (offset == 0) return 'GMT';
    if (field.count >= 4) return 'GMT' + sign + two(hours) + ':' + two(minutes);
    return 'GMT' + sign + hours + (minutes ? ':' + two(minutes) : '');
  },

  $velmoraNumberText__deps: ['$velmoraDigits'],
  $velmoraNumberText: function(tag, number, minimumDigits) {
    var digits = velmoraDigits(tag);
    return String(number).padStart(minimumDigits, '0').replace(/[0-9]/g, function(digit) { return digits[digit]; });
  },

  // A field of the date; of a letter that is not known nothing.
  $velmoraFieldText__deps: ['$velmoraName', '$velmoraNumberText', '$velmoraDayPeriod', '$velmoraPart',
                            '$velmoraOffsetText'],
  $velmoraFieldText: function(tag, field, date, offset) {
    var style = ['short', 'long', 'narrow'][Math.min(2, Math.max(0, field.count - 3))];
    var hour = date.getUTCHours(), year = date.getUTCFullYear();
    var number = function(value) { return velmoraNumberText(tag, value, field.count); };
    switch (field.letter) {
      case 'G': return velmoraPart(tag, {era: 'short', year: 'numeric'}, 'era', date);
      case 'y': year = year > 0 ? year : 1 - year; return number(field.count == 2 ? year % 100 : year);
      case 'u': return number(year);
      case 'M': case 'L':
        if (field.count < 3) return number(date.getUTCMonth() + 1);
        return velmoraName(tag, 'month', style, date.getUTCMonth(), field.letter == 'L');
      case 'd': return number(date.getUTCDate());
      case 'E': case 'c': return velmoraName(tag, 'weekday', style, date.getUTCDay(), field.letter == 'c');
      case 'a': return velmoraDayPeriod(tag, hour, false);
      case 'b': case 'B': return velmoraDayPeriod(tag, hour, true);
      case 'h': return number(hour % 12 || 12);
      case 'H': return number(hour);
      case 'K': return number(hour % 12);
      case 'k': return number(hour || 24);
      case 'm': return number(date.getUTCMinutes());
      case 's': return number(date.getUTCSeconds());
      case 'S': return velmoraNumberText(tag, String(date.getUTCMilliseconds()).padStart(3, '0')
        .padEnd(field.count, '0').slice(0, field.count), 0);
      case 'z': case 'O': case 'Z': case 'X': case 'x': return velmoraOffsetText(field, offset);
      default: return '';
    }
  },

  // The date that clocks show when they are so many milliseconds from 1970-01-01T00:00, written by a pattern.
  velmora_intl_date_text__deps: ['$velmoraTag', '$velmoraFields', '$velmoraFieldText'],
  velmora_intl_date_text: function(identifier, pattern, milliseconds, offset) {
    var tag = velmoraTag(UTF8ToString(identifier));
    var date = new Date(Math.max(-8.64e15, Math.min(8.64e15, milliseconds)));
    return allocateUTF8(velmoraFields(UTF8ToString(pattern)).map(function(field) {
      return typeof field == 'string' ? field : velmoraFieldText(tag, field, date, offset);
    }).join(''));
  },
});
