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

// A design with some chosen.
async function choosing(...targets) {
  const bench = await designing();
  await bench.page.click(box(targets[0]));
  await bench.holding(["Shift"], async () => {
    for (const target of targets.slice(1)) {
      await bench.page.click(box(target));
    }
  });
  return bench;
}

test("a drag keeps to the grid, and to the edges of a neighbour where one is near, which a guide shows", async () => {
  const bench = await designing();
  const { page } = bench;
  const [missing, cancel] = [await placeOf(bench, "Missing"), await placeOf(bench, "Cancel")];
  const { mouse } = page;
  const centre = await page.$eval(box("Cancel"), (element) => {
    const { left, top, width, height } = element.getBoundingClientRect();
    return { x: left + width / 2, y: top + height / 2 };
  });
  await mouse.move(centre.x, centre.y);
  await mouse.down();
  // Left edges two pixels apart.
  await mouse.move(centre.x + missing.x - cancel.x + 30, centre.y);
  await mouse.move(centre.x + missing.x - cancel.x + 2, centre.y);
  await page.waitForSelector(".guide.upright");
  const at = (selector) => page.$eval(selector, (element) => element.style.left);
  assert.equal(await at(".guide.upright"), await at(bench.field("Missing")));
  await mouse.up();
  await bench.waitFor((selector, x) => document.querySelector(selector).offsetLeft === x, bench.field("Cancel"), missing.x);
  assert.equal(await page.$(".guide"), null);
  // Far from all others the grid counts.
  await mouse.move(centre.x + missing.x - cancel.x, centre.y);
  await mouse.down();
  for (const by of [21, 22, 23, 24, 25, 26]) {
    await mouse.move(centre.x + missing.x - cancel.x + by, centre.y);
    if (!(await page.$(".guide"))) {
      assert.equal(parseFloat(await at(box("Cancel"))) % 4, 0, `${by} pixels`);
    }
  }
  await mouse.up();
});

test("the space between several is made the same", async () => {
  const bench = await choosing("Name", "Digits", "Missing");
  const { page } = bench;
  const places = async () => Promise.all(["Name", "Digits", "Missing"].map((target) => placeOf(bench, target)));
  const before = await places();
  assert.notEqual(before[1].y - before[0].y, before[2].y - before[1].y);
  const text = await bench.editorText();
  await page.click("#design-bar [aria-label='Distribute down']");
  await bench.waitFor((selector, y) => document.querySelector(selector).offsetTop > y, bench.field("Digits"), before[1].y);
  const after = await places();
  const gaps = [after[1].y - after[0].y - after[0].height, after[2].y - after[1].y - after[1].height];
  assert.ok(Math.abs(gaps[0] - gaps[1]) <= 2, gaps.join());
  assert.deepEqual([after[0].y, after[2].y], [before[0].y, before[2].y], "the outermost stay");
  assert.deepEqual(changed(text, await bench.editorText()).map((line) => line.replace(/\d+,/g, "N,")), ["TextBox   N,  N,  N,  N, .Digits"]);
});

test("edges are brought onto those of the first that was chosen", async () => {
  const edges = {
    "Align left": (place) => place.x,
    "Align right": (place) => place.x + place.width,
    "Align top": (place) => place.y,
    "Align bottom": (place) => place.y + place.height,
  };
  const bench = await choosing("Name", "Cancel");
  for (const [name, edge] of Object.entries(edges)) {
    const wanted = edge(await placeOf(bench, "Name"));
    await bench.page.click(`#design-bar [aria-label='${name}']`);
    await bench.waitFor(
      (selector, at, which) => {
        const { offsetLeft: x, offsetTop: y, offsetWidth: width, offsetHeight: height } = document.querySelector(selector);
        return Math.abs({ left: x, right: x + width, top: y, bottom: y + height }[which] - at) <= 1;
      },
      bench.field("Cancel"),
      wanted,
      name.split(" ")[1],
    );
  }
});

test("what is typed and what is dragged have one undo", async () => {
  const bench = await designing();
  const { page } = bench;
  const before = await bench.editorText();
  const { x } = await placeOf(bench, "Cancel");
  await bench.putCursor("; lytInSym.dlg");
  await page.keyboard.type("!");
  const typed = await bench.editorText();
  await drag(bench, box("Cancel"), -40, 0);
  await bench.waitFor((selector, right) => document.querySelector(selector).offsetLeft < right, bench.field("Cancel"), x);
  await page.focus(".cm-content");
  await bench.holding(["Control"], () => page.keyboard.press("z"));
  assert.equal(await bench.editorText(), typed);
  await bench.holding(["Control"], () => page.keyboard.press("z"));
  assert.equal(await bench.editorText(), before);
  await bench.waitFor((selector, left) => document.querySelector(selector).offsetLeft === left, bench.field("Cancel"), x);
});

test("each kind of control comes from the palette", async () => {
  const bench = await designing();
  const { page } = bench;
  const types = await page.$$eval("#design-bar option", (options) => options.map((option) => option.value).filter((value) => value));
  for (const type of types) {
    await page.select("#design-bar select", type);
    const corner = await page.$eval(".overlay", (overlay) => overlay.getBoundingClientRect().toJSON());
    await page.mouse.click(corner.left + 30, corner.top + 40);
    await page.waitForSelector("dialog.ask input");
    await page.keyboard.type(`My${type}`);
    await page.keyboard.press("Enter");
    await page.waitForSelector(box(`My${type}`));
    assert.equal(await page.$eval("#outcome", (line) => line.textContent), "", type);
    await page.focus(box(`My${type}`));
    await page.keyboard.press("Enter");
    await page.keyboard.press("Delete");
    await bench.waitFor((selector) => !document.querySelector(selector), box(`My${type}`));
  }
  assert.deepEqual(bench.trouble, []);
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
  await page.click("#design-bar [aria-label='Equal widths']");
  await bench.waitFor((selector, width) => document.querySelector(selector).offsetWidth === width, bench.field("Digits"), name.width);
  assert.deepEqual(changed(text, await bench.editorText()).map((line) => line.replace(/ +/g, " ")), ["TextBox 176, 50, 255, 19, .Digits"]);
  await page.click("#design-bar [aria-label='Align top']");
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
  await bench.waitForNoText("#outcome");
});

test("keys alone do all of it", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const lineOf = async (name) => (await bench.editorText()).split("\n").findIndex((line) => line.endsWith(`.${name}`));
  await page.focus("#design");
  await page.keyboard.press("Enter");
  await page.waitForSelector(box("Unit"));
  await page.focus(box("Unit"));
  await page.keyboard.press("Enter");
  await page.focus(box("Digits"));
  await bench.holding(["Shift"], () => page.keyboard.press("Enter"));
  await page.focus("#design-bar [aria-label='Equal widths']");
  await page.keyboard.press("Enter");
  await bench.waitFor((one, other) => document.querySelector(one).offsetWidth === document.querySelector(other).offsetWidth, bench.field("Unit"), bench.field("Digits"));
  await page.focus("#design-bar [aria-pressed]");
  await page.keyboard.press("Enter");
  await page.waitForSelector(`${box("Unit")} .number`);
  assert.ok((await lineOf("Digits")) < (await lineOf("Unit")));
  await page.focus(box("Unit"));
  await page.keyboard.press("ArrowUp");
  await bench.waitFor(() => /\.Unit\n[^]*\.Digits\n/.test(document.querySelector(".cm-content").cmTile.view.state.doc.toString()));
  await page.select("#design-bar select", "CheckBox");
  await page.focus("#design-bar select");
  await page.keyboard.press("Enter");
  await page.waitForSelector("dialog.ask input");
  await page.keyboard.type("Mine");
  await page.keyboard.press("Enter");
  await page.waitForSelector(box("Mine"));
  assert.deepEqual(bench.trouble, []);
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
