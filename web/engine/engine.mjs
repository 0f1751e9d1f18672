// The engine as a page sees it: files in memory, and messages of the protocol.

// Where the program would be: the sample libraries look there for their texts, lytdata.txt and lytsrc.txt.
export const programFolder = "/lytdlg";

// Opens the module that lytengine.mjs makes, with the bytes of lytengine.wasm.
export async function openEngine(createModule, wasmBinary) {
  const engine = new Engine(async () => {
    const module = await createModule({ wasmBinary });
    module.FS.mkdirTree(programFolder);
    module.FS.symlink(`${programFolder}/lytdlg`, "/proc/self/exe");
    return module;
  });
  await engine.restart();
  return engine;
}

class Engine {
  #create;
  #module;

  constructor(create) {
    this.#create = create;
  }

  // After `take` or `work` has thrown, which only a failure of the module itself makes it do: begins anew, with the files as they are.
  async restart() {
    const files = this.#module ? this.list("/").map((path) => [path, this.read(path)]) : [];
    this.#module = await this.#create();
    for (const [path, bytes] of files) this.write(path, bytes);
  }

  // Gives the messages that the server sends, in their order.
  take(message) {
    const text = JSON.stringify(message);
    const size = this.#module.lengthBytesUTF8(text) + 1;
    const place = this.#module._malloc(size);
    try {
      this.#module.stringToUTF8(text, place, size);
      return this.#messagesAt(this.#module._lytengine_take(place));
    } finally {
      this.#module._free(place);
    }
  }

  // The same for a piece of work that could wait; nothing if there is none.
  work() {
    const place = this.#module._lytengine_work();
    return place === 0 ? undefined : this.#messagesAt(place);
  }

  #messagesAt(place) {
    return JSON.parse(this.#module.UTF8ToString(place));
  }

  write(path, bytes) {
    this.#module.FS.mkdirTree(path.slice(0, path.lastIndexOf("/")));
    this.#module.FS.writeFile(path, bytes);
  }

  read(path) {
    return this.#module.FS.readFile(path);
  }

  remove(path) {
    this.#module.FS.unlink(path);
  }

  // The files below a folder, by their whole paths; not those of the system.
  list(folder) {
    const { FS } = this.#module;
    const paths = [];
    for (const name of FS.readdir(folder)) {
      const path = `${folder === "/" ? "" : folder}/${name}`;
      if ([".", ".."].includes(name) || ["/dev", "/proc", "/tmp"].includes(path)) continue;
      if (FS.isDir(FS.stat(path).mode)) paths.push(...this.list(path));
      else paths.push(path);
    }
    return paths;
  }

  // Bytes that the module has taken from the browser.
  get memory() {
    return this.#module.HEAPU8.length;
  }
}
