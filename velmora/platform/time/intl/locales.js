// Locales by the engine's own Intl. An identifier that no engine can read is the root locale.
mergeInto(LibraryManager.library, {
  // Objects that are costly to make, kept under a key; starts anew when it is full.
  $velmoraKept: '=new Map()',
  $velmoraKeep__deps: ['$velmoraKept'],
  $velmoraKeep: function(key, make) {
    if (!velmoraKept.has(key)) {
      if (velmoraKept.size >= 512) velmoraKept.clear();
      velmoraKept.set(key, make());
    }
    return velmoraKept.get(key);
  },

  // The canonical locale of an identifier ("zh_Hans_CN@calendar=chinese"), whether the engine has data for it or
  // not; null for the root locale.
  $velmoraLocale__deps: ['$velmoraKeep'],
  $velmoraLocale: function(identifier) {
    return velmoraKeep('locale ' + identifier, function() {
      try {
        return new Intl.Locale(identifier.split(/[.@]/)[0].replace(/_/g, '-'));
      } catch (error) {
        return null;
      }
    });
  },

  // English written the international way stands for the root locale.
  $velmoraRootTag: '="en-u-hc-h23"',

  // The tag of a locale that the engine has data for. What it does not know, it would take for the locale of
  // the device. Arabic of no region is written with its own digits, which not every engine does by itself.
  $velmoraTag__deps: ['$velmoraKeep', '$velmoraLocale', '$velmoraRootTag'],
  $velmoraTag: function(identifier) {
    return velmoraKeep('tag ' + identifier, function() {
      var locale = velmoraLocale(identifier);
      var isKnown = locale && Intl.DateTimeFormat.supportedLocalesOf([locale.baseName]).length > 0;
      if (!isKnown) return velmoraRootTag;
      return locale.baseName == 'ar' ? 'ar-u-nu-arab' : locale.baseName;
    });
  },

  // The options that override a locale's clock habit: 12, 24 or 0 for none.
  $velmoraHourOptions: function(hourCycle) {
    return hourCycle == 0 ? {} : {hourCycle: hourCycle == 24 ? 'h23' : 'h12'};
  },

  // Language, script and region with blanks between, empty where there is none.
  velmora_intl_locale_parts__deps: ['$velmoraLocale'],
  velmora_intl_locale_parts: function(identifier) {
    var locale = velmoraLocale(UTF8ToString(identifier));
    if (!locale) return allocateUTF8('  ');
    return allocateUTF8([locale.language, locale.script, locale.region].map(function(part) {
      return part || '';
    }).join(' '));
  },

  velmora_intl_is_right_to_left__deps: ['$velmoraKeep', '$velmoraLocale'],
  velmora_intl_is_right_to_left: function(identifier) {
    var name = UTF8ToString(identifier);
    return velmoraKeep('side ' + name, function() {
      var locale = velmoraLocale(name);
      var script = locale ? locale.maximize().script : '';
      return 'Adlm Arab Aran Hebr Mand Mend Nkoo Rohg Samr Syrc Thaa Yezi'.split(' ').includes(script) ? 1 : 0;
    });
  },

  velmora_intl_plural_category__deps: ['$velmoraKeep', '$velmoraTag', '$velmoraRootTag'],
  velmora_intl_plural_category: function(identifier, count) {
    var tag = velmoraTag(UTF8ToString(identifier));
    if (tag == velmoraRootTag) return allocateUTF8('other');
    var rules = velmoraKeep('plural ' + tag, function() {
      return new Intl.PluralRules(tag);
    });
    return allocateUTF8(rules.select(count));
  },

  // 1 = Sunday .. 7 = Saturday, where the engine counts from Monday; Monday where it does not know.
  velmora_intl_first_weekday__deps: ['$velmoraLocale'],
  velmora_intl_first_weekday: function(identifier) {
    var locale = velmoraLocale(UTF8ToString(identifier));
    var week = locale && (locale.getWeekInfo ? locale.getWeekInfo() : locale.weekInfo);
    return week ? week.firstDay % 7 + 1 : 2;
  },

  velmora_intl_counts_to_24__deps: ['$velmoraKeep', '$velmoraTag'],
  velmora_intl_counts_to_24: function(identifier) {
    var tag = velmoraTag(UTF8ToString(identifier));
    var cycle = velmoraKeep('cycle ' + tag, function() {
      return new Intl.DateTimeFormat(tag, {hour: 'numeric'}).resolvedOptions().hourCycle;
    });
    return cycle == 'h23' || cycle == 'h24' ? 1 : 0;
  },
});
