// Every request that the server offers, asked by the client library of the protocol's authors.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { startServer } from "./server.mjs";

const name = "lytInSym.dlg";
let server;
before(async () => {
  server = await startServer();
  const first = server.findings(name, () => true);
  await server.open(name);
  await first;
});
after(async () => assert.equal(await server.stop(), 0));

const document = () => ({ textDocument: { uri: server.uriOf(name) } });
const linesOf = (answer) => answer.map((each) => each.range.start.line);

test("a mistake is found where it is, and goes by its action", async () => {
  const told = server.findings(name, (all) => all.length > 0);
  await server.change(name, "Mark = HIDDEN", "Mark = HIDEN");
  const [finding] = await told;
  const { position } = server.at(name, "Mark = HIDEN", "HIDEN");
  assert.equal(finding.range.start.line, position.line);
  assert.equal(finding.source, "lytdlg");

  const params = { ...document(), range: finding.range, context: { diagnostics: [finding] } };
  const [action] = await server.ask("textDocument/codeAction", params);
  const [edit] = action.edit.changes[server.uriOf(name)];
  const { start, end } = edit.range;
  const line = server.text(name).split("\n")[start.line];
  const mended = line.slice(0, start.character) + edit.newText + line.slice(end.character);
  assert.equal(mended.trim(), "Mark = HIDDEN");

  const sound = server.findings(name, (all) => all.length === 0);
  await server.change(name, line, mended);
  await sound;
});

test("completion offers what fits", async () => {
  const labels = async (start, word) => {
    const answer = await server.ask("textDocument/completion", server.at(name, start, word));
    return (answer.items ?? answer).map((item) => item.label);
  };
  assert.ok((await labels("TextBox   176,  24", "TextBox")).includes("DropListBox"));
  assert.ok((await labels("Unit/ACTIVE", "ACTIVE")).includes("VISIBLE"));
  assert.ok((await labels("Unit/ACTIVE", "Digits")).includes("Missing"));
  assert.ok((await labels("Name = NULL", "NameMissing")).includes("DigitsMissing"));
});

test("hover explains types, controls and messages", async () => {
  const told = async (start, word) =>
    JSON.stringify((await server.ask("textDocument/hover", server.at(name, start, word))).contents);
  assert.match(await told("TextBox   176,  50", "TextBox"), /a field/);
  assert.match(await told("Unit/ACTIVE", "Digits"), /TextBox/);
  assert.match(await told("Name = NULL", "NameMissing"), /German/);
});

test("a name is found, shown and renamed in all its places", async () => {
  const place = server.at(name, "Unit/ACTIVE", "Digits");
  const definition = await server.ask("textDocument/definition", place);
  const [line] = linesOf([definition].flat());
  assert.equal(line, server.at(name, "TextBox   176,  50", ".Digits").position.line);

  const references = await server.ask("textDocument/references", { ...place, context: { includeDeclaration: true } });
  assert.ok(references.length > 5);
  const marks = await server.ask("textDocument/documentHighlight", place);
  const here = references.filter((each) => each.uri === server.uriOf(name));
  assert.deepEqual(linesOf(marks).sort(), linesOf(here).sort());

  const range = await server.ask("textDocument/prepareRename", place);
  assert.ok(range);
  const edit = await server.ask("textDocument/rename", { ...place, newName: "Places" });
  const edits = edit.changes?.[server.uriOf(name)] ?? edit.documentChanges.flatMap((each) => each.edits);
  assert.ok(edits.length >= here.length);
  await assert.rejects(server.ask("textDocument/rename", { ...place, newName: "Unit" }), /Unit/);
});

test("a dialog is renamed with its file and with those that open it", async () => {
  await server.open("lytRpGrp.dlg");
  const place = server.at("lytRpGrp.dlg", "EditFinding: DIALOG", "finding");
  const { documentChanges } = await server.ask("textDocument/rename", { ...place, newName: "remark" });
  assert.deepEqual(documentChanges.at(-1), {
    kind: "rename",
    oldUri: server.uriOf("finding.dlg"),
    newUri: server.uriOf("remark.dlg"),
  });
  assert.ok(documentChanges[0].edits.length > 1);
  await assert.rejects(server.ask("textDocument/rename", { ...place, newName: "lytInSym" }), /library/);
});

test("a language file leads to the dialogs, and completes what it lacks", async () => {
  const texts = "lang/German.nls";
  await server.open(texts);
  const place = server.at(texts, "Digits=", "Digits");
  const references = await server.ask("textDocument/references", { ...place, context: { includeDeclaration: false } });
  assert.ok(references.some((each) => each.uri === server.uriOf(name)));
  assert.ok((await server.ask("textDocument/documentSymbol", { textDocument: place.textDocument })).length > 4);
  assert.match(JSON.stringify(await server.ask("textDocument/hover", place)), /English/);
});

test("the text has an outline, folds, colours, links, hints and a form", async () => {
  assert.ok((await server.ask("textDocument/documentSymbol", document())).length > 4);
  assert.ok((await server.ask("textDocument/foldingRange", document())).length > 4);
  assert.ok((await server.ask("textDocument/semanticTokens/full", document())).data.length > 0);
  assert.ok(Array.isArray(await server.ask("textDocument/documentLink", document())));
  const whole = { start: { line: 0, character: 0 }, end: { line: 1000, character: 0 } };
  assert.ok((await server.ask("textDocument/inlayHint", { ...document(), range: whole })).length > 0);
  assert.ok((await server.ask("textDocument/codeLens", document())).length > 0);
  const form = { ...document(), options: { tabSize: 4, insertSpaces: true } };
  assert.deepEqual((await server.ask("textDocument/formatting", form)) ?? [], []);
});

test("the dialog is drawn after acts", async () => {
  const request = { ...document(), input: "S1:area(2,m2)", language: "English", dpi: 96, acts: ["set Digits = "], svg: true };
  const played = await server.ask("lytdlg/play", request);
  assert.match(played.svg, /^<svg/);
  const unit = played.dialogs[0].controls.find((each) => each.target === "Unit");
  assert.equal(unit.enabled, false);
  const { failed } = await server.ask("lytdlg/play", { ...request, acts: ["press Nobody"] });
  assert.match(failed.reason, /Nobody/);
});

test("nothing ends the server", async () => {
  await assert.rejects(server.ask("no/such/request", {}));
  await assert.rejects(server.ask("textDocument/hover", { textDocument: 7 }));
  assert.ok(await server.ask("textDocument/documentSymbol", document()));
});
