// The engine and the program, given the same messages over the same files.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { cpSync, mkdtempSync, readFileSync, readdirSync, rmSync, statSync } from "node:fs";
import { tmpdir } from "node:os";
import { dirname, join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";

import { openEngine, programFolder } from "../engine.mjs";

const patience = 60000 * Number(process.env.LYT_PATIENCE ?? 1); // milliseconds
const samples = fileURLToPath(new URL("../../../samples", import.meta.url));

function filesBelow(folder) {
  return readdirSync(folder).flatMap((name) => {
    const path = join(folder, name);
    return statSync(path).isDirectory() ? filesBelow(path) : [path];
  });
}

// The messages that a program writes, each after a header with its length.
class Program {
  #bytes = Buffer.alloc(0);
  #messages = [];
  #wake = () => {};

  constructor(path) {
    this.process = spawn(path, ["lsp"], { stdio: ["pipe", "pipe", "inherit"] });
    this.process.stdout.on("data", (bytes) => {
      this.#bytes = Buffer.concat([this.#bytes, bytes]);
      for (;;) {
        const end = this.#bytes.indexOf("\r\n\r\n");
        const size = Number(/(\d+)/.exec(this.#bytes.subarray(0, Math.max(0, end)).toString())?.[1]);
        if (end < 0 || this.#bytes.length < end + 4 + size) break;
        this.#messages.push(JSON.parse(this.#bytes.subarray(end + 4, end + 4 + size).toString()));
        this.#bytes = this.#bytes.subarray(end + 4 + size);
      }
      this.#wake();
    });
    this.process.on("exit", () => this.#wake());
  }

  send(message) {
    const text = JSON.stringify(message);
    this.process.stdin.write(`Content-Length: ${Buffer.byteLength(text)}\r\n\r\n${text}`);
  }

  async next(count) {
    while (this.#messages.length < count) {
      assert.equal(this.process.exitCode, null, "the program has ended");
      await new Promise((resolve, reject) => {
        const late = setTimeout(() => reject(new Error(`the program sends less: ${JSON.stringify(this.#messages)}`)), patience);
        this.#wake = () => {
          clearTimeout(late);
          resolve();
        };
      });
    }
    return this.#messages.splice(0, count);
  }
}

export class Pair {
  #id = 0;

  static async open(engineFolder, program) {
    const { default: createModule } = await import(pathToFileURL(join(engineFolder, "lytengine.mjs")).href);
    const pair = new Pair();
    pair.createModule = createModule;
    pair.wasm = readFileSync(join(engineFolder, "lytengine.wasm"));
    pair.engine = await openEngine(createModule, pair.wasm);
    pair.folder = mkdtempSync(join(tmpdir(), "lytengine-"));
    for (const room of ["dialogs", "init", "cases"]) cpSync(join(samples, room), join(pair.folder, room), { recursive: true });
    for (const path of filesBelow(pair.folder)) pair.engine.write(path, readFileSync(path));
    for (const name of ["lytdata.txt", "lytsrc.txt"])
      pair.engine.write(`${programFolder}/${name}`, readFileSync(join(dirname(program), name)));
    pair.program = new Program(program);
    await pair.ask("initialize", { capabilities: { textDocument: { completion: { completionItem: { snippetSupport: true } } } } });
    return pair;
  }

  close() {
    this.program.process.kill();
    rmSync(this.folder, { recursive: true });
  }

  get dialogs() {
    return readdirSync(join(this.folder, "dialogs")).filter((name) => name.endsWith(".dlg"));
  }

  document(name) {
    return { uri: pathToFileURL(join(this.folder, "dialogs", name)).href };
  }

  // As an editor shows it.
  text(name) {
    return new TextDecoder("windows-1252").decode(readFileSync(join(this.folder, "dialogs", name)));
  }

  // Both take the message, do all work that there is then, and must send the same.
  async take(message) {
    const sent = this.engine.take(message);
    for (let more; (more = this.engine.work()); ) sent.push(...more);
    this.program.send(message);
    assert.deepEqual(sent, await this.program.next(sent.length), JSON.stringify(message).slice(0, 500));
    return sent;
  }

  async ask(method, params) {
    const sent = await this.take({ jsonrpc: "2.0", id: ++this.#id, method, params });
    return sent[0];
  }

  async tell(method, params) {
    return await this.take({ jsonrpc: "2.0", method, params });
  }

  async open(name, text = this.text(name)) {
    return await this.tell("textDocument/didOpen", { textDocument: { ...this.document(name), languageId: "lytdlg", version: 1, text } });
  }
}
