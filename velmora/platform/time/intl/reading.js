// Dates read by Unicode's patterns. Known are the letters y (of all its digits), M, L, d, E, c, a, H, h, K, k, m
// and s; no text follows a pattern that has others.
mergeInto(LibraryManager.library, {
  $velmoraEscaped: function(text) {
    return text.replace(/[.*+?^${}()|[\]\\\/]/g, '\\$&').replace(/\s+/g, '\\s+');
  },

  // The names that a field is read by; none where it is a number.
  $velmoraReadNames__deps: ['$velmoraNames', '$velmoraDayPeriod'],
  $velmoraReadNames: function(tag, field) {
    var style = field.count == 4 ? 'long' : 'short', isAlone = field.letter == 'L' || field.letter == 'c';
    switch (field.letter) {
      case 'M': case 'L': return field.count < 3 ? null : velmoraNames(tag, 'month', style, isAlone);
      case 'E': case 'c': return velmoraNames(tag, 'weekday', style, isAlone);
      case 'a': return [velmoraDayPeriod(tag, 6, false), velmoraDayPeriod(tag, 18, false)];
      default: return null;
    }
  },

  // A regular expression of the field. A number may have fewer or more digits than letters and blanks before it,
  // but beside another field it keeps its width.
  $velmoraFieldSource__deps: ['$velmoraReadNames', '$velmoraDigits', '$velmoraEscaped'],
  $velmoraFieldSource: function(tag, fields, index) {
    var names = velmoraReadNames(tag, fields[index]);
    if (names) return '(' + names.map(velmoraEscaped).join('|') + ')';
    var isTouched = [index - 1, index + 1].some(function(at) { return typeof fields[at] == 'object'; });
    var width = isTouched ? '{' + fields[index].count + '}' : '+';
    return '\\s*([0-9' + velmoraDigits(tag).join('') + ']' + width + ')';
  },

  // What reads by a pattern: its expression and the fields in it; null for a pattern with a field not known.
  $velmoraReader__deps: ['$velmoraKeep', '$velmoraFields', '$velmoraEscaped', '$velmoraFieldSource'],
  $velmoraReader: function(tag, pattern) {
    return velmoraKeep('reader ' + tag + ' ' + pattern, function() {
      var fields = velmoraFields(pattern);
      var read = fields.filter(function(field) { return typeof field == 'object'; });
      var isKnown = function(field) { return 'yMLdEcaHhKkms'.includes(field.letter); };
      if (!read.length || !read.every(isKnown)) return null;
      var source = fields.map(function(field, index) {
        return typeof field == 'string' ? velmoraEscaped(field) : velmoraFieldSource(tag, fields, index);
      });
      return {expression: new RegExp('^\\s*' + source.join('') + '\\s*$', 'iu'), fields: read};
    });
  },

  // The value of a field's text: a number, or the place of a name.
  $velmoraFieldValue__deps: ['$velmoraReadNames', '$velmoraDigits'],
  $velmoraFieldValue: function(tag, field, text) {
    var names = velmoraReadNames(tag, field), digits = velmoraDigits(tag);
    if (!names) {
      return Number(Array.from(text).map(function(digit) {
        return digits.includes(digit) ? digits.indexOf(digit) : digit;
      }).join(''));
    }
    var same = function(name) { return name.toLowerCase() == text.toLowerCase().replace(/\s/g, ' '); };
    return names.findIndex(function(name) { return same(name.replace(/\s/g, ' ')); });
  },

  // The hour of 0 to 23 that was read; −1 for none that exists.
  $velmoraReadHour: function(values) {
    var half = values.a == 1 ? 12 : 0;
    var isBelow = function(value, end) { return value < end ? value : -1; };
    if ('H' in values) return isBelow(values.H, 24);
    if ('k' in values) return values.k > 24 || values.k == 0 ? -1 : values.k % 24;
    if ('h' in values) return values.h > 12 ? -1 : values.h % 12 + half;
    return 'K' in values ? (values.K > 11 ? -1 : values.K + half) : half;
  },

  // Milliseconds of a date; NaN for one that does not exist.
  $velmoraReadDate__deps: ['$velmoraReadHour'],
  $velmoraReadDate: function(values) {
    var value = function(letter, otherwise) { return letter in values ? values[letter] : otherwise; };
    var year = value('y', 1970), month = value('M', 1), day = value('d', 1), hour = velmoraReadHour(values);
    var date = new Date(0);
    date.setUTCFullYear(year, month - 1, day);
    var isDate = date.getUTCFullYear() == year && date.getUTCMonth() == month - 1 && date.getUTCDate() == day;
    if (!isDate || hour < 0 || value('m', 0) > 59 || value('s', 0) > 59) return NaN;
    return date.setUTCHours(hour, value('m', 0), value('s', 0));
  },

  // What clocks show when the text is read by the pattern, in milliseconds since 1970-01-01T00:00; NaN for a text
  // that does not follow it.
  velmora_intl_read_date__deps: ['$velmoraTag', '$velmoraReader', '$velmoraFieldValue', '$velmoraReadDate'],
  velmora_intl_read_date: function(identifier, pattern, text) {
    var tag = velmoraTag(UTF8ToString(identifier));
    var reader = velmoraReader(tag, UTF8ToString(pattern));
    var found = reader && reader.expression.exec(UTF8ToString(text));
    if (!found) return NaN;
    var values = {};
    reader.fields.forEach(function(field, index) {
      var value = velmoraFieldValue(tag, field, found[index + 1]);
      var isMonth = field.letter == 'M' || field.letter == 'L';
      values[isMonth ? 'M' : field.letter] = isMonth && field.count > 2 ? value + 1 : value;
    });
    return velmoraReadDate(values);
  },
});
