// In WebAssembly nothing catches what is thrown, which would cost every call: an operation that ends without an
// answer leaves the module as an error of JavaScript with its status.
mergeInto(LibraryManager.library, {
  velmora_end: function(status, message) {
    var Kind = status == 5 || status == 6 ? Error : RangeError; // VELMORA_NO_DATA, VELMORA_FAILED
    throw Object.assign(new Kind(UTF8ToString(message)), {status: status});
  },
});
