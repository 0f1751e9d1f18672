// The design: what is done with the pointer or the keys changes the numbers of the text, and nothing else.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { startBrowser } from "./page.mjs";

let browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());

async function designing() {
  const bench = await (await browser.open()).ready();
  await bench.page.click("#design");
  await bench.page.waitForSelector(".overlay .box");
  return bench;
}

const box = (target) => `.overlay [data-box="${target}"]`;

async function placeOf(bench, target) {
  return bench.page.$eval(bench.field(target), (element) => ({ x: element.offsetLeft, y: element.offsetTop, width: element.offsetWidth, height: element.offsetHeight }));
}

async function drag(bench, selector, dx, dy) {
  const { x, y } = await bench.page.$eval(selector, (element) => {
    const { left, top, width, height } = element.getBoundingClientRect();
    return { x: left + width / 2, y: top + height / 2 };
  });
  const { mouse } = bench.page;
  await mouse.move(x, y);
  await mouse.down();
  await mouse.move(x + dx / 2, y + dy / 2);
  await mouse.move(x + dx, y + dy);
  await mouse.up();
}

// The lines that are others than before.
function changed(before, after) {
  const lines = after.split("\n");
  const old = before.split("\n");
  return lines.filter((line, index) => line !== old[index]).map((line) => line.trim());
}

test("a control is dragged; only its numbers change, and one undo takes it back", async () => {
  const bench = await designing();
  const { page } = bench;
  const text = await bench.editorText();
  const before = await placeOf(bench, "Advice").catch(() => undefined);
  assert.ok(before);
  const cancel = await placeOf(bench, "Cancel");
  await drag(bench, box("Cancel"), -40, 0);
  await bench.waitFor((selector, x) => document.querySelector(selector).offsetLeft < x - 20, bench.field("Cancel"), cancel.x);
  const now = await bench.editorText();
  const lines = changed(text, now);
  assert.equal(lines.length, 1);
  assert.match(lines[0], /^CancelButton \d+, 145, 112, 22, \.Cancel$/);
  await page.keyboard.down("Control");
  await page.keyboard.press("z");
  await page.keyboard.up("Control");
  await bench.waitFor((selector, x) => document.querySelector(selector).offsetLeft === x, bench.field("Cancel"), cancel.x);
  assert.equal(await bench.editorText(), text);
  assert.deepEqual(bench.trouble, []);
});

test("a corner is dragged to size, and the keys move and size as well", async () => {
  const bench = await designing();
  const { page } = bench;
  const before = await placeOf(bench, "Unit");
  await page.click(box("Unit"));
  await page.waitForSelector(`${box("Unit")} .handle`);
  await drag(bench, `${box("Unit")} .handle`, -60, 0);
  await bench.waitFor((selector, width) => document.querySelector(selector).offsetWidth < width - 40, bench.field("Unit"), before.width);
  await page.focus(box("Unit"));
  await page.keyboard.press("ArrowDown");
  await bench.waitFor((selector, y) => document.querySelector(selector).offsetTop > y, bench.field("Unit"), before.y);
  const narrow = (await placeOf(bench, "Unit")).width;
  await page.keyboard.down("Shift");
  await page.keyboard.press("ArrowRight");
  await page.keyboard.up("Shift");
  await bench.waitFor((selector, width) => document.querySelector(selector).offsetWidth > width, bench.field("Unit"), narrow);
});

test("several are brought into line and to one width", async () => {
  const bench = await designing();
  const { page } = bench;
  const text = await bench.editorText();
  const name = await placeOf(bench, "Name");
  await page.click(box("Name"));
  await page.keyboard.down("Shift");
  await page.click(box("Digits"));
  await page.keyboard.up("Shift");
  await page.click("#design-bar ::-p-text(Equal widths)");
  await bench.waitFor((selector, width) => document.querySelector(selector).offsetWidth === width, bench.field("Digits"), name.width);
  assert.deepEqual(changed(text, await bench.editorText()).map((line) => line.replace(/ +/g, " ")), ["TextBox 176, 50, 255, 19, .Digits"]);
  await page.click("#design-bar ::-p-text(Align top)");
  await bench.waitFor((selector, y) => document.querySelector(selector).offsetTop === y, bench.field("Digits"), name.y);
});

test("the order of the Tab key follows a number that is dragged, with its label", async () => {
  const bench = await designing();
  const { page } = bench;
  await page.click("#design-bar ::-p-text(Tab order)");
  await page.waitForSelector(`${box("Unit")} .number`);
  const centre = (target) => page.$eval(box(target), (element) => element.getBoundingClientRect().top);
  await drag(bench, `${box("Unit")} .number`, 0, (await centre("Name")) - (await centre("Unit")));
  await bench.waitFor(() => /UnitLabel[^]*\.Unit\n[^]*NameLabel/.test(document.querySelector(".cm-content").cmTile.view.state.doc.toString()));
  await bench.waitForText("#outcome", "");
});

test("a new control comes with its text in each language, and goes again", async () => {
  const bench = await designing();
  const { page } = bench;
  await page.select("#design-bar select", "PushButton");
  const corner = await page.$eval(".overlay", (overlay) => overlay.getBoundingClientRect().toJSON());
  await page.mouse.click(corner.left + 20, corner.top + 180);
  await page.waitForSelector("dialog.ask input");
  await page.keyboard.type("Again");
  await page.keyboard.press("Tab");
  await page.keyboard.type("Again!");
  await page.keyboard.press("Tab");
  await page.keyboard.type("Größer!");
  await page.keyboard.press("Enter");
  await bench.waitForText(bench.field("Again"), "Again!");
  await page.select("#language", "German");
  await bench.waitForText(bench.field("Again"), "Größer!");
  await page.click(box("Again"));
  await page.keyboard.press("Delete");
  await bench.waitFor((field) => !document.querySelector(field), bench.field("Again"));
  assert.deepEqual(bench.trouble, []);
});
