// Why a control is as it is, the way of the text in and out, and the cases.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { startBrowser } from "./page.mjs";

let browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());

test("a click with Alt tells what decides a control, and lights up its lines", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.replaceField("#input", "S1:area");
  await page.waitForSelector(`${bench.field("Unit")}:disabled`);
  await page.keyboard.down("Alt");
  await page.click(bench.field("Unit"));
  await page.keyboard.up("Alt");
  await bench.waitForText("#page-why", "Digits holds nothing");
  assert.match(await bench.text("#page-why .fails"), /Digits.*would have to change/);
  await bench.waitForText(".cm-editor", "Unit/ACTIVE");
  assert.ok(await page.$(".cm-line.lit"));
  await page.click("#page-why .rules .link");
  await bench.waitForText(".cm-line.lit", "Unit/ACTIVE");
  assert.deepEqual(await bench.acts(), [], "a question is no act");
});

test("a line leads to its control, and F1 asks about the control with the focus", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.click(".cm-line ::-p-text(UnitLabel)");
  await page.waitForSelector(`${bench.field("UnitLabel")}.found`);
  await page.keyboard.press("ArrowDown");
  await page.waitForSelector(`${bench.field("Unit")}.found`);
  await page.focus(bench.field("Missing"));
  await page.keyboard.press("F1");
  await bench.waitForText("#page-why .sentences", "Missing is shown and enabled");
  // Hidden controls have no place to click at.
  await page.select("#page-why select", "Mark");
  await bench.waitForText("#page-why .sentences", "Mark is hidden");
});

test("the pieces of the input and of the result have their controls, step by step", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const pieces = (where) => page.$$eval(`${where} .piece`, (all) => all.map((each) => [each.textContent, each.className.match(/colour-\d/)?.[0]]));
  await page.waitForSelector("#way-in .piece");
  const into = new Map(await pieces("#way-in"));
  const out = new Map(await pieces("#result"));
  for (const text of ["area", "2", "m2", "n. a."]) {
    assert.ok(into.get(text), text);
    assert.equal(into.get(text), out.get(text), `${text} has one colour`);
  }
  await page.click("#tab-way");
  await page.click("#way-forth");
  await bench.waitForText("#page-way .current", "Start");
  await bench.waitForText(".cm-line.lit", "Start:");
  await page.click("#way-forth");
  await bench.waitForText("#page-way .current", "Known");
  await page.click("#way-back");
  await bench.waitForText("#page-way .current", "Start");
  await page.waitForSelector(`${bench.field("Mark")}.found`);
});

test("all cases run at each change, and what failed says so", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.click("#tab-cases");
  await bench.waitForText("#case-count", " 0 failed");
  await bench.replace('("S1:%s(%.1s,%s)"', '("S2:%s(%.1s,%s)"');
  await bench.waitForText("#tab-cases", "failed");
  await bench.waitForText("#page-cases .cases", 'got: expect result = "S2');
});

test("acts and result become a case with a click", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.replaceField(bench.field("Name"), "Größe");
  await bench.waitForActs('set Name = "Größe"');
  await page.click(bench.field("Ok"));
  await bench.waitForText("#outcome", "Confirmed");
  await page.click("#tab-cases");
  await bench.waitForText("#case-count", "12 passed, 0 failed");
  await page.click("#new-case");
  await page.waitForSelector("dialog.ask input");
  await page.keyboard.type("a name with letters");
  await page.keyboard.press("Enter");
  await bench.waitForText("#case-count", "13 passed, 0 failed");
  await bench.show("cases/symbol.case");
  assert.match(await bench.editorText(), /case: "?a name with letters"?\n[^]*set Name = "Größe"\nok\nexpect result = "S1:Größe/);
});

test("the cases of all samples pass", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.click("#tab-cases");
  for (const name of ["lytInSym", "lytInPhr", "lytCdGrp", "lytRpGrp", "lytWzSym", "lytWzPhr", "lytWzGrp", "finding"]) {
    await bench.show(`dialogs/${name}.dlg`);
    await bench.waitForText("#dialog-name", name);
    await bench.waitFor((dialog) => document.querySelector("#page-cases").dataset.dialog === dialog, `dialogs/${name}.dlg`);
    assert.match(await bench.text("#case-count"), /^[1-9]\d* passed, 0 failed$/, name);
  }
  assert.deepEqual(bench.trouble, []);
});
