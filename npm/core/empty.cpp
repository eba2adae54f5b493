// The module is the library alone.
