/** The module's own entry; the build says where it lies. */
declare module "velmora-module" {
  export const loadVelmora: import("./velmora").LoadVelmora;
}
