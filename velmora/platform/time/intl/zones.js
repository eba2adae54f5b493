// Time zones by the engine's own Intl: whether a name is a zone, its offset at an instant, and where the engine
// has Temporal the next change of its clocks.
mergeInto(LibraryManager.library, {
  // Formatters of the zones asked for so far, by handle; 0 is no zone.
  $velmoraZones: '=[null]',

  // Names of the zone database without a slash. An engine knows abbreviations besides ("PST"), which name no
  // zone.
  $velmoraPlainZoneNames:
    '=("CET CST6CDT Cuba EET EST EST5EDT Egypt Eire GB GB-Eire GMT GMT+0 GMT-0 GMT0 Greenwich HST Hongkong " +' +
    '"Iceland Iran Israel Jamaica Japan Kwajalein Libya MET MST MST7MDT NZ NZ-CHAT Navajo PRC PST8PDT Poland " +' +
    '"Portugal ROC ROK Singapore Turkey UCT UTC Universal W-SU WET Zulu").split(" ")',

  // Engines take a name in any case, a system's files in one alone: words of at most three capitals in a row,
  // but "of", "es" and "au".
  $velmoraIsZoneName__deps: ['$velmoraPlainZoneNames'],
  $velmoraIsZoneName: function(name) {
    if (name.length > 64 || name.startsWith('SystemV/')) return false;
    if (!name.includes('/')) return velmoraPlainZoneNames.includes(name);
    return name.split(/[/_+-]/).every(function(word) {
      return /^(of|es|au|[0-9]*|[A-Z][A-Za-z]*[0-9]*)$/.test(word) && !/[A-Z]{4}/.test(word);
    });
  },

  $velmoraZoneFormat: function(name) {
    try {
      return new Intl.DateTimeFormat('en-US', {
        timeZone: name, calendar: 'gregory', numberingSystem: 'latn', hourCycle: 'h23',
        year: 'numeric', month: 'numeric', day: 'numeric', hour: 'numeric', minute: 'numeric', second: 'numeric',
      });
    } catch (error) {
      return null;
    }
  },

  // Whether the name is written as the engine writes it; a link's name, which an engine may answer with its
  // target's, is taken as it stands.
  $velmoraIsWellWritten: function(name, answered) {
    return answered === name || answered.toLowerCase() !== name.toLowerCase();
  },

  // A handle of the zone; 0 if there is none of that name.
  velmora_intl_zone__deps: ['$velmoraZones', '$velmoraIsZoneName', '$velmoraZoneFormat', '$velmoraIsWellWritten'],
  velmora_intl_zone: function(identifier) {
    var name = UTF8ToString(identifier);
    var format = velmoraIsZoneName(name) ? velmoraZoneFormat(name) : null;
    if (!format || !velmoraIsWellWritten(name, format.resolvedOptions().timeZone)) return 0;
    return velmoraZones.push({name: name, format: format}) - 1;
  },

  // Offset from GMT in seconds at whole seconds since 1970, of a year after 100.
  velmora_intl_zone_offset__deps: ['$velmoraZones'],
  velmora_intl_zone_offset: function(zone, seconds) {
    var read = velmoraZones[zone].format.format(seconds * 1000).match(/\d+/g);
    return Date.UTC(read[2], read[0] - 1, read[1], read[3] % 24, read[4], read[5]) / 1000 - seconds;
  },

  // The instant of the next change of offset, infinite if there is none; NaN where the engine cannot say.
  velmora_intl_zone_next_change__deps: ['$velmoraZones'],
  velmora_intl_zone_next_change: function(zone, seconds) {
    if (typeof Temporal == 'undefined') return NaN;
    var from = Temporal.Instant.fromEpochMilliseconds(seconds * 1000);
    var next = from.toZonedDateTimeISO(velmoraZones[zone].name).getTimeZoneTransition('next');
    return next ? next.epochMilliseconds / 1000 : Infinity;
  },

  // The zone that the engine is set to, in memory that the caller frees.
  velmora_intl_system_zone: function() {
    return allocateUTF8(new Intl.DateTimeFormat().resolvedOptions().timeZone || '');
  },
});
