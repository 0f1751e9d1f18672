// The module of the engine is made elsewhere; the build of the page finds it.
declare module "lytengine" {
  const createModule: (options: { wasmBinary: Uint8Array | ArrayBuffer }) => Promise<unknown>;
  export default createModule;
}
