// Lines of text, handed on to the page: `Module.texts` measures and keeps them.
mergeInto(LibraryManager.library, {
  velmora_canvas2d_forget_lines: function(locale) {
    Module['texts'].forget(UTF8ToString(locale).replace(/_/g, '-'));
  },

  velmora_canvas2d_begin_line: function(number) {
    Module['texts'].beginLine(number);
  },

  velmora_canvas2d_add_run: function(number, text, size, family, fontSize, weight, color) {
    Module['texts'].addRun(number, UTF8ToString(text, size), UTF8ToString(family), fontSize, weight,
                           UTF8ToString(color));
  },

  velmora_canvas2d_measure_line: function(number, metrics) {
    var measured = Module['texts'].measure(number);
    HEAPF64.set([measured.width, measured.ascent, measured.descent, measured.isRightToLeft ? 1 : 0], metrics >> 3);
  },

  velmora_canvas2d_glyph_boxes: function(number, boxes, room) {
    var glyphs = Module['texts'].glyphs(number);
    glyphs.slice(0, room).forEach(function(glyph, index) {
      HEAPF64.set([glyph.left, glyph.advance], (boxes >> 3) + 2 * index);
    });
    return Math.min(glyphs.length, room);
  },
});
