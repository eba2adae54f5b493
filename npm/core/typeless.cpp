// Nothing in a module asks for an object's type at run time, but the C++ library's objects have tables that
// name their types, and with them comes all that compares types: two per cent of the module. These stand in
// for it.
extern "C" {
extern void* const ofClass[3] __asm__("_ZTVN10__cxxabiv117__class_type_infoE");
extern void* const ofDerivedClass[3] __asm__("_ZTVN10__cxxabiv120__si_class_type_infoE");
extern void* const ofMixedClass[3] __asm__("_ZTVN10__cxxabiv121__vmi_class_type_infoE");

void* const ofClass[3] = {};
void* const ofDerivedClass[3] = {};
void* const ofMixedClass[3] = {};
}
