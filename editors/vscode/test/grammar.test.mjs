// The grammar names what a reader of a sample would: each row is a line's start, a word in it, and its scope.
import assert from "node:assert/strict";
import fs from "node:fs";
import { createRequire } from "node:module";
import test from "node:test";
import oniguruma from "vscode-oniguruma";
import textmate from "vscode-textmate";

const grammarFile = new URL("../out/lytdlg.tmLanguage.json", import.meta.url);
const sample = new URL("../../../samples/dialogs/lytInSym.dlg", import.meta.url);

const rows = [
  ["; lytInSym.dlg", "; lytInSym", "comment.line.semicolon"],
  ["$VERSION 1", "$VERSION", "keyword.control.section"],
  ["Begin Dialog", "Dialog", "keyword.control"],
  ["    TextBox     0", "TextBox", "storage.type"],
  ["    TextBox     0", "Mark", "entity.name.variable"],
  ["    TextBox     0", "; tells", "comment.line.semicolon"],
  ["    Text       16", "150", "constant.numeric"],
  ["    Text       16", "Advice", "string.quoted.double"],
  ["    Mark = HIDDEN", "HIDDEN", "constant.language"],
  ["    Unit/ACTIVE", "ACTIVE", "constant.language"],
  ["    Start:", "Rest", "keyword.control"],
  ["    Unit(NULL) =", "%s", "constant.other.placeholder"],
  ["    Unit(NULL) =", '\\"', "constant.character.escape"],
];

async function load() {
  const wasm = createRequire(import.meta.url).resolve("vscode-oniguruma/release/onig.wasm");
  await oniguruma.loadWASM(fs.readFileSync(wasm).buffer);
  const registry = new textmate.Registry({
    onigLib: Promise.resolve({
      createOnigScanner: (patterns) => new oniguruma.OnigScanner(patterns),
      createOnigString: (text) => new oniguruma.OnigString(text),
    }),
    loadGrammar: async () => textmate.parseRawGrammar(fs.readFileSync(grammarFile, "utf8"), "lytdlg.json"),
  });
  return registry.loadGrammar("source.lytdlg");
}

test("words of a sample have their scopes", async () => {
  const grammar = await load();
  const lines = fs.readFileSync(sample, "latin1").split(/\r?\n/);
  for (const [start, word, scope] of rows) {
    const line = lines.find((each) => each.startsWith(start));
    assert.ok(line, `the sample has no line "${start}"`);
    const column = line.indexOf(word);
    const { tokens } = grammar.tokenizeLine(line, textmate.INITIAL);
    const token = tokens.find((each) => each.startIndex <= column && column < each.endIndex);
    assert.ok(token.scopes.includes(scope), `"${word}" in "${line}" is ${token.scopes.join(" ")}`);
  }
});
