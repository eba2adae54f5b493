// Pictures, handed on to the page as they are encoded: `Module.pictures` decodes and keeps them.
mergeInto(LibraryManager.library, {
  velmora_canvas2d_add_image: function(serial, encoded, size) {
    var pictures = Module['pictures'];
    if (!pictures.has(serial)) pictures.add(serial, HEAPU8.slice(encoded, encoded + size));
  },
});
