// Patterns of dates in Unicode's letters, read off what the engine's own Intl writes.
mergeInto(LibraryManager.library, {
  // The fields of a pattern ({letter, count}) and the texts between them.
  $velmoraFields__deps: ['$velmoraKeep'],
  $velmoraFields: function(pattern) {
    return velmoraKeep('pattern ' + pattern, function() {
      var tokens = pattern.match(/''|'(?:[^']|'')*'?|([A-Za-z])\1*|[^'A-Za-z]+/g) || [];
      return tokens.map(function(token) {
        if (/^[A-Za-z]/.test(token)) return {letter: token[0], count: token.length};
        if (token == "''") return "'";
        return token[0] == "'" ? token.replace(/^'|'$/g, '').replace(/''/g, "'") : token;
      });
    });
  },

  $velmoraQuoted: function(text) {
    var doubled = text.replace(/'/g, "''");
    return /[A-Za-z]/.test(doubled) ? "'" + doubled + "'" : doubled;
  },

  // Whether what a format has at some hours is the same as AM and PM there.
  $velmoraHasPlainPeriods__deps: ['$velmoraPart', '$velmoraDayPeriod'],
  $velmoraHasPlainPeriods: function(tag, options) {
    return [1, 6, 10, 13, 18, 23].every(function(hour) {
      var written = velmoraPart(tag, options, 'dayPeriod', Date.UTC(2023, 0, 1, hour));
      return written == velmoraDayPeriod(tag, hour, false);
    });
  },

  $velmoraMonthPattern__deps: ['$velmoraName'],
  $velmoraMonthPattern: function(tag, name, isAlone) {
    var isLong = name == velmoraName(tag, 'month', 'long', 3, isAlone);
    return (isAlone ? 'L' : 'M').repeat(isLong ? 4 : 3);
  },

  // The pattern of what the engine writes with the options: read off the morning of Saturday, 2003-04-05.
  $velmoraPatternOf__deps: ['$velmoraKeep', '$velmoraParts', '$velmoraQuoted', '$velmoraHasPlainPeriods',
                            '$velmoraMonthPattern', '$velmoraName'],
  $velmoraPatternOf: function(tag, asked) {
    var options = Object.assign({numberingSystem: 'latn'}, asked);
    var parts = velmoraParts(tag, options, Date.UTC(2003, 3, 5, 6, 7, 8));
    var isDated = parts.some(function(part) { return part.type == 'day'; });
    var cycle = new Intl.DateTimeFormat(tag, asked).resolvedOptions().hourCycle;
    return parts.map(function(part) {
      var isNumber = /^[0-9]+$/.test(part.value), letters = isNumber ? Math.min(part.value.length, 2) : 0;
      switch (part.type) {
        case 'year': return letters == 2 && part.value.length == 2 ? 'yy' : 'y';
        case 'month': return isNumber ? 'M'.repeat(letters) : velmoraMonthPattern(tag, part.value, !isDated);
        case 'day': return 'd'.repeat(letters);
        case 'weekday': return part.value == velmoraName(tag, 'weekday', 'long', 6, !isDated) ? 'EEEE' : 'EEE';
        case 'hour': return {h11: 'K', h12: 'h', h23: 'H', h24: 'k'}[cycle].repeat(letters);
        case 'minute': return 'm'.repeat(letters);
        case 'second': return 's'.repeat(letters);
        case 'dayPeriod': return velmoraHasPlainPeriods(tag, options) ? 'a' : 'B';
        case 'era': return 'G';
        default: return velmoraQuoted(part.value);
      }
    }).join('');
  },

  // The options that ask for the fields of a template ("jmm", "MMMd").
  $velmoraOptionsOf__deps: ['$velmoraFields', '$velmoraHourOptions'],
  $velmoraOptionsOf: function(template, hourCycle) {
    var options = {};
    velmoraFields(template).forEach(function(field) {
      var number = field.count == 2 ? '2-digit' : 'numeric';
      var name = ['short', 'long', 'narrow'][Math.max(0, field.count - 3)];
      switch (field.letter) {
        case 'G': options.era = 'short'; break;
        case 'y': options.year = number; break;
        case 'M': case 'L': options.month = field.count < 3 ? number : name; break;
        case 'd': options.day = number; break;
        case 'E': case 'c': options.weekday = name; break;
        case 'j': Object.assign(options, {hour: number}, velmoraHourOptions(hourCycle)); break;
        case 'H': case 'k': Object.assign(options, {hour: number, hourCycle: 'h23'}); break;
        case 'h': case 'K': Object.assign(options, {hour: number, hourCycle: 'h12'}); break;
        case 'm': options.minute = number; break;
        case 's': options.second = number; break;
      }
    });
    return options;
  },

  velmora_intl_template_pattern__deps: ['$velmoraTag', '$velmoraPatternOf', '$velmoraOptionsOf'],
  velmora_intl_template_pattern: function(identifier, hourCycle, template) {
    var options = velmoraOptionsOf(UTF8ToString(template), hourCycle);
    var isEmpty = Object.keys(options).length == 0;
    return allocateUTF8(isEmpty ? '' : velmoraPatternOf(velmoraTag(UTF8ToString(identifier)), options));
  },

  // The pattern of the styles (0 none, 1 short, 2 medium) by the habit of the locale. Where the clock habit is
  // overridden, the time's part is that of its fields.
  velmora_intl_style_pattern__deps: ['$velmoraKeep', '$velmoraTag', '$velmoraPatternOf', '$velmoraOptionsOf'],
  velmora_intl_style_pattern: function(identifier, overridingCycle, dateStyle, timeStyle) {
    var tag = velmoraTag(UTF8ToString(identifier)), styles = [undefined, 'short', 'medium'];
    var key = ['styles', tag, overridingCycle, dateStyle, timeStyle].join(' ');
    return allocateUTF8(velmoraKeep(key, function() {
      var habitual = velmoraPatternOf(tag, {dateStyle: styles[dateStyle], timeStyle: styles[timeStyle]});
      if (!timeStyle || !overridingCycle) return habitual;
      var fields = velmoraOptionsOf(timeStyle == 1 ? 'jmm' : 'jmmss', overridingCycle);
      return habitual.replace(velmoraPatternOf(tag, {timeStyle: styles[timeStyle]}), velmoraPatternOf(tag, fields));
    }));
  },
});
