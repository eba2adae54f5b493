// Names and digits of a locale by the engine's own Intl.
mergeInto(LibraryManager.library, {
  $velmoraParts__deps: ['$velmoraKeep'],
  $velmoraParts: function(tag, options, time) {
    var format = velmoraKeep('date ' + tag + JSON.stringify(options), function() {
      return new Intl.DateTimeFormat(tag, Object.assign({calendar: 'gregory', timeZone: 'UTC'}, options));
    });
    return format.formatToParts(time);
  },

  $velmoraPart__deps: ['$velmoraParts'],
  $velmoraPart: function(tag, options, type, time) {
    var found = velmoraParts(tag, options, time).find(function(part) { return part.type == type; });
    return found ? found.value : '';
  },

  // The name ("short", "long", "narrow") of a month or weekday, counted from January and Sunday: as it stands
  // alone, or as within a date, which the engine tells only when day and month are asked for too. Where a date
  // has a bare number, the name is the whole that stands alone ("6月").
  $velmoraName__deps: ['$velmoraKeep', '$velmoraParts', '$velmoraPart'],
  $velmoraName: function(tag, type, style, index, isAlone) {
    return velmoraKeep(['name', tag, type, style, index, isAlone].join(' '), function() {
      var time = type == 'month' ? Date.UTC(2023, index, 5) : Date.UTC(2023, 0, 1 + index);
      var alone = {};
      alone[type] = style;
      var within = isAlone ? '' : velmoraPart(tag, Object.assign({month: 'short', day: 'numeric'}, alone), type, time);
      if (within && !/^\p{Nd}+$/u.test(within)) return within;
      return velmoraParts(tag, alone, time).map(function(part) { return part.value; }).join('');
    });
  },

  $velmoraNames__deps: ['$velmoraName'],
  $velmoraNames: function(tag, type, style, isAlone) {
    return Array.from({length: type == 'month' ? 12 : 7}, function(_, index) {
      return velmoraName(tag, type, style, index, isAlone);
    });
  },

  // What stands for AM and PM, or with `isFlexible` for the part of the day ("in the evening").
  $velmoraDayPeriod__deps: ['$velmoraKeep', '$velmoraPart'],
  $velmoraDayPeriod: function(tag, hour, isFlexible) {
    return velmoraKeep(['period', tag, hour, isFlexible].join(' '), function() {
      var options = {hour: 'numeric', hourCycle: 'h12'};
      if (isFlexible) options.dayPeriod = 'short';
      return velmoraPart(tag, options, 'dayPeriod', Date.UTC(2023, 0, 1, hour));
    });
  },

  $velmoraDigits__deps: ['$velmoraKeep'],
  $velmoraDigits: function(tag) {
    return velmoraKeep('digits ' + tag, function() {
      var format = new Intl.NumberFormat(tag, {useGrouping: false});
      return Array.from({length: 10}, function(_, digit) { return format.format(digit); });
    });
  },

  // The short names of the weekdays or months within dates, a line each.
  velmora_intl_short_names__deps: ['$velmoraTag', '$velmoraNames'],
  velmora_intl_short_names: function(identifier, areMonths) {
    var names = velmoraNames(velmoraTag(UTF8ToString(identifier)), areMonths ? 'month' : 'weekday', 'short', false);
    return allocateUTF8(names.join('\n'));
  },
});
