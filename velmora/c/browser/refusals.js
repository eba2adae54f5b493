// In WebAssembly nothing catches what is thrown, which would cost every call: it leaves the module as an error of
// JavaScript with the status that the operation would have ended with.
mergeInto(LibraryManager.library, {
  __cxa_throw__deps: ['velmora_thrown', 'velmora_message'],
  __cxa_throw: function(thrown, type) {
    var status = _velmora_thrown(thrown, type);
    var Kind = status == 5 || status == 6 ? Error : RangeError; // VELMORA_NO_DATA, VELMORA_FAILED
    throw Object.assign(new Kind(UTF8ToString(_velmora_message())), {status: status});
  },
});
