import assert from "node:assert/strict";
import { after, before, test } from "node:test";

import { openEngine } from "../engine.mjs";
import { Pair } from "./pair.mjs";

const count = Number(process.env.LYT_COUNT);
const seed = Number(process.env.LYT_SEED);
let pair;

before(async () => {
  pair = await Pair.open(process.env.LYT_ENGINE, process.env.LYT_PROGRAM);
});
after(() => pair.close());

test("every sample is read, judged and laid out alike", async () => {
  for (const name of pair.dialogs) {
    await pair.open(name);
    for (const method of ["formatting", "documentSymbol", "foldingRange", "documentLink", "semanticTokens/full", "codeLens"])
      assert.ok("result" in (await pair.ask(`textDocument/${method}`, { textDocument: pair.document(name) })));
  }
});

test("every case of the samples passes, and is played and explained alike", async () => {
  for (const name of pair.dialogs) {
    const textDocument = pair.document(name);
    const { cases } = (await pair.ask("lytdlg/cases", { textDocument })).result;
    for (const { passed, input, language, items, acts, name: title } of cases) {
      assert.ok(passed, title);
      const play = { textDocument, input, language, items, dpi: 96, svg: true };
      await pair.ask("lytdlg/play", { ...play, acts, dpi: 120 });
      await pair.ask("lytdlg/play", { ...play, acts });
      await pair.ask("lytdlg/way", { ...play, acts });
      await pair.ask("lytdlg/newCase", { ...play, acts, name: "again" });
      const { result } = await pair.ask("lytdlg/play", { ...play, acts: acts.slice(0, -1) });
      for (const { target } of result.dialogs.at(-1)?.controls ?? [])
        await pair.ask("lytdlg/why", { ...play, acts: acts.slice(0, -1), target });
    }
  }
});

test("what follows from reading a text does not wait for what follows from trying the dialog", async () => {
  const engine = await openEngine(pair.createModule, pair.wasm);
  const text = pair.text("lytInSym.dlg");
  const uri = "file:///texts/dialogs/lytInSym.dlg";
  engine.take({ jsonrpc: "2.0", id: 1, method: "initialize", params: {} });
  const textDocument = { uri, languageId: "lytdlg", version: 1, text };
  const sent = engine.take({ jsonrpc: "2.0", method: "textDocument/didOpen", params: { textDocument } });
  assert.deepEqual(sent.map(({ method }) => method), ["textDocument/publishDiagnostics"]);
  assert.ok(engine.work());
  assert.equal(engine.work(), undefined);
});

test("an engine whose module has failed begins anew with its files", async () => {
  let fails = false;
  const create = async (options) => {
    const module = await pair.createModule(options);
    const take = module._lytengine_take;
    module._lytengine_take = (place) => {
      if (fails) throw new WebAssembly.RuntimeError("unreachable");
      return take(place);
    };
    return module;
  };
  const engine = await openEngine(create, pair.wasm);
  engine.write("/texts/dialogs/a.dlg", new Uint8Array([1, 2]));
  fails = true;
  assert.throws(() => engine.take({ jsonrpc: "2.0", id: 1, method: "initialize", params: {} }));
  fails = false;
  await engine.restart();
  assert.deepEqual(engine.list("/"), ["/texts/dialogs/a.dlg"]);
  assert.ok("result" in engine.take({ jsonrpc: "2.0", id: 1, method: "initialize", params: {} })[0]);
});

test("what is no message, and no text, is answered alike", async () => {
  for (const message of [1, [], {}, { id: 1 }, { id: 1, method: 2 }, { id: {}, method: "x" }, { id: 1, method: "\ud800" }, { method: "x" }])
    await pair.take(message);
  await pair.open("finding.dlg", "\u0000\u001a$VERSION \ud83d 1\n\u{1f600}");
});

// Numbers from 0 to 1, the same for a seed.
function numbersFrom(start) {
  let state = start >>> 0;
  return () => {
    state = (state + 0x6d2b79f5) >>> 0;
    let mixed = Math.imul(state ^ (state >>> 15), state | 1);
    mixed ^= mixed + Math.imul(mixed ^ (mixed >>> 7), mixed | 61);
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 4294967296;
  };
}

class Author {
  constructor(start) {
    this.number = numbersFrom(start);
    this.acts = [];
  }

  below(limit) {
    return Math.floor(this.number() * limit);
  }

  pick(list) {
    return list[this.below(list.length)];
  }

  async begin() {
    this.name = this.pick(pair.dialogs);
    this.lines = pair.text(this.name).split("\n");
    this.input = this.pick(["", "S1:area(2,m2)", "a;b;c", "IF a = 1", "x\u00e4(1"]);
    this.acts = [];
    await pair.open(this.name);
  }

  // A line is lost, doubled, changed in a letter, or comes from elsewhere.
  async edit() {
    const at = this.below(this.lines.length);
    const line = this.lines[at];
    const cut = this.below(line.length + 1);
    const changed = this.pick([
      [],
      [line, line],
      [line.slice(0, cut) + this.pick(['"', ",", "(", ".", "1", "\u00e4", "", "$", "\u{1f600}"]) + line.slice(cut + 1)],
      [this.pick(this.lines)],
      [line.slice(0, cut), line.slice(cut)],
    ]);
    this.lines.splice(at, 1, ...changed);
    const range = { start: { line: at, character: 0 }, end: { line: at + 1, character: 0 } };
    const text = changed.map((each) => `${each}\n`).join("");
    await pair.tell("textDocument/didChange", { textDocument: pair.document(this.name), contentChanges: [{ range, text }] });
  }

  async play() {
    const request = { textDocument: pair.document(this.name), input: this.input, dpi: this.pick([96, 120]), acts: this.acts };
    const { result } = await pair.ask("lytdlg/play", request);
    const controls = result?.dialogs.at(-1)?.controls ?? [];
    if (result?.failed || result?.outcome === "confirmed" || result?.outcome === "cancelled" || controls.length === 0)
      this.acts = [];
    else this.acts = [...this.acts, this.act(this.pick(controls))];
    const target = controls.length === 0 ? "#1" : this.pick(controls).target;
    await pair.ask(this.pick(["lytdlg/way", "lytdlg/why", "lytdlg/newCase"]), { ...request, target, name: "case" });
  }

  act({ target, items }) {
    const value = JSON.stringify(items.length > 0 ? this.pick(items).value ?? this.pick(items).path : this.pick(["", "1", "a\u00e4b"]));
    const item = items.length > 0 ? JSON.stringify(this.pick(items).path ?? this.pick(items).text) : value;
    const quoted = target.startsWith("#") ? target : JSON.stringify(target);
    return this.pick([
      `set ${quoted} = ${value}`, `set ${quoted} = ${value}`, `press ${quoted}`, `press ${quoted}`, `focus ${quoted}`, `check ${quoted}`,
      `select ${quoted} ${item}`, `doubleclick ${quoted} ${item}`, `expand ${quoted} ${item}`, `append ${quoted} ${value}`,
      `key ${this.pick(["tab", "enter", "down", "space", "escape"])}`, "ok", "cancel",
    ]);
  }

  async look() {
    const position = { line: this.below(this.lines.length), character: this.below(30) };
    const method = this.pick(["completion", "hover", "definition", "prepareRename", "documentHighlight", "formatting"]);
    await pair.ask(`textDocument/${method}`, { textDocument: pair.document(this.name), position });
  }
}

test(`${count} random acts and edits come to the same, and memory stays level`, async () => {
  const author = new Author(seed);
  let half = 0;
  for (let step = 0; step < count; ++step) {
    if (step === Math.floor(count / 2)) half = pair.engine.memory;
    if (step % 40 === 0) await author.begin();
    const choice = author.number();
    try {
      await (choice < 0.25 ? author.edit() : choice < 0.85 ? author.play() : author.look());
    } catch (failure) {
      failure.message = `step ${step} of seed ${seed}: ${failure.message}`;
      throw failure;
    }
  }
  assert.equal(pair.engine.memory, half);
});
