// The editor: findings with their cures, completion, explanations, names, format, and the bytes of the files.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { startBrowser } from "./page.mjs";

let browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());

test("a mistake is underlined while it is typed, and its cure is a click", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const sound = await bench.editorText();
  await bench.replace("Mark = HIDDEN", "Mark = HIDEN");
  await page.waitForSelector(".cm-lintRange");
  await bench.waitForText("#findings", "HIDEN");
  const cure = await page.waitForSelector("#findings .cure");
  await cure.click();
  await bench.waitForText("#finding-count", "no findings");
  assert.equal(await bench.editorText(), sound);
  assert.deepEqual(bench.trouble, []);
});

test("each kind of word has its colour, in a description and in a language file", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const word = (kind, text) => bench.waitFor((where, wanted) => [...document.querySelectorAll(where)].some((each) => each.textContent.includes(wanted)), `.cm-content .tok-${kind}`, text);
  await word("comment", "; lytInSym.dlg");
  await word("heading", "$LAYOUT");
  await word("type", "TextBox");
  await word("number", "464");
  await word("string", "Title");
  await word("variable", "Digits");
  await bench.show("dialogs/lang/English.nls");
  await word("heading", "[");
});

test("what fits is proposed, and taken with Return", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.putCursor("Advice/VISIBLE = Name(NULL)");
  await page.keyboard.press("Enter");
  await page.keyboard.type("Mis");
  await page.waitForSelector(".cm-tooltip-autocomplete");
  await bench.waitForText(".cm-tooltip-autocomplete", "Missing");
  await new Promise((resolve) => setTimeout(resolve, 100));
  await page.keyboard.press("Enter");
  await bench.waitFor(() => document.querySelector(".cm-content").cmTile.view.state.doc.toString().includes("\n    Missing"));
});

test("a word is explained under the pointer, and leads to where it is given", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.putCursor("    Unit/ACTIVE");
  // The colours of the names come a moment later, and with them other elements.
  await bench.page.waitForSelector(".cm-activeLine .tok-variable");
  const place = await page.evaluate(() => {
    const found = [...document.querySelectorAll(".cm-activeLine .tok-variable")].find((each) => each.textContent === "Digits");
    const { x, y, width, height } = found.getBoundingClientRect();
    return { x: x + width / 2, y: y + height / 2 };
  });
  await page.mouse.move(place.x, place.y);
  await page.mouse.move(place.x + 1, place.y);
  await bench.waitForText(".cm-tooltip-hover", "TextBox");
  await bench.putCursor("Unit/ACTIVE = Digits");
  await page.keyboard.press("F12");
  await bench.waitForText(".cm-line.lit", ".Digits");
  // The other way: a click with Ctrl, on the key of a text, leads into the language file.
  await bench.putCursor('12, "Digits');
  const key = await page.evaluate(() => {
    const { left, top } = document.querySelector(".cm-content").cmTile.view.coordsAtPos(document.querySelector(".cm-content").cmTile.view.state.selection.main.head - 3);
    return { x: left + 2, y: top + 5 };
  });
  await bench.holding(["Control"], () => page.mouse.click(key.x, key.y));
  await bench.waitForText("#tabs [aria-selected=true]", ".nls");
  await bench.waitForText(".cm-line.lit", "Digits=");
});

test("a name is renamed in all its places, with one undo", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const before = await bench.editorText();
  await bench.putCursor("Unit/ACTIVE = Digits");
  await page.keyboard.press("F2");
  await page.waitForSelector("dialog.ask input");
  await page.keyboard.type("Places");
  await page.keyboard.press("Enter");
  await bench.waitFor(() => document.querySelector(".cm-content").cmTile.view.state.doc.toString().includes("Unit/ACTIVE = Places(NOTNULL)"));
  await bench.waitFor((field) => document.querySelector(field), bench.field("Places"));
  await page.focus(".cm-content");
  await page.keyboard.down("Control");
  await page.keyboard.press("z");
  await page.keyboard.up("Control");
  assert.equal(await bench.editorText(), before);
});

test("a text is brought into form", async () => {
  const bench = await (await browser.open()).ready();
  const before = await bench.editorText();
  await bench.replace("Unit/ACTIVE = ", "Unit / ACTIVE=");
  await bench.page.click("#format");
  await bench.waitForText("#status", "Formatted");
  assert.equal(await bench.editorText(), before);
});

test("a change of a language file is seen in the dialog, with its letters", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.select("#language", "German");
  await bench.show("dialogs/lang/German.nls");
  await bench.replace("Title=Eigenschaften eines Wertes", "Title=Größe");
  await bench.waitForText("#stage .window .title", "Größe");
});

test("a character that the code page lacks is found before it is lost", async () => {
  const bench = await (await browser.open()).ready();
  await bench.putCursor("; lytInSym.dlg");
  await bench.page.keyboard.type(" → ä");
  await bench.waitForText("#findings", "code page 1252");
});
