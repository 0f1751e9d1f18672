// The dialog is worked as a user works it; each act is a line.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { startBrowser } from "./page.mjs";

let browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());

test("fields are typed into, buttons are pressed, and the result comes out", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.waitFor((field) => document.querySelector(field)?.value === "area", bench.field("Name"));
  await bench.replaceField(bench.field("Name"), "volume");
  await bench.waitForActs('set Name = "volume"');
  await page.keyboard.press("Tab");
  await bench.waitForActs('set Name = "volume"', "focus Digits");
  await page.keyboard.type("1");
  await bench.waitForActs('set Name = "volume"', 'set Digits = "1"');
  await page.click(bench.field("Ok"));
  await bench.waitForText("#outcome", "Confirmed");
  assert.equal(await bench.text("#result"), 'S1:volume(1,m2)="n. a."');

  // Undo is one act less.
  await page.click("#undo");
  await bench.waitForActs('set Name = "volume"', 'set Digits = "1"');
  await bench.waitForNoText("#outcome");
  await page.click("#undo");
  await page.click("#undo");
  await bench.waitFor((field) => document.querySelector(field)?.value === "area", bench.field("Name"));
  await page.click("#redo");
  await bench.waitFor((field) => document.querySelector(field)?.value === "volume", bench.field("Name"));
  assert.deepEqual(bench.trouble, []);
});

test("rules act while a field is typed into, and hidden controls are shown as ghosts", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.click(bench.field("Digits"), { count: 3 });
  await page.keyboard.press("Backspace");
  await page.waitForSelector(`${bench.field("Unit")}:disabled`);
  assert.equal(await page.$eval(bench.field("Advice"), (element) => element.hidden), true);
  await page.click("#ghosts");
  await page.waitForSelector(`${bench.field("Advice")}.ghost:not([hidden])`);
});

test("language and resolution change what is drawn", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.select("#language", "German");
  await bench.waitForText("#stage .window .title", "Eigenschaften");
  const width = () => page.$eval("#stage .window", (window) => window.offsetWidth);
  const before = await width();
  await page.select("#resolution", "120");
  await bench.waitFor((small) => document.querySelector("#stage .window").offsetWidth > small, before);
});

test("a message box opens on top, and Enter closes it", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.click(bench.field("Name"), { count: 3 });
  await page.keyboard.press("Backspace");
  await bench.waitForActs('set Name = ""');
  await page.keyboard.press("Enter");
  await page.waitForSelector(".message:not([hidden])");
  assert.match(await bench.text(".message .words"), /name/i);
  await page.keyboard.press("Enter");
  await page.waitForSelector(".message[hidden]");
  assert.deepEqual(await bench.acts(), ['set Name = ""', "key return"]);
});

test("lists are chosen from and marked; a nested dialog and the catalogue open on top", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.openDialog("lytRpGrp.dlg", "Findings of an inspection");
  await bench.replaceField("#input", " ");
  await bench.waitFor((field) => document.querySelector(field)?.value === "", bench.field("Heading"));
  await page.waitForSelector(`${bench.field("AllRooms")} [role=option]`);
  await page.click(`${bench.field("AllRooms")} [role=option]:nth-child(3)`);
  await page.keyboard.press("ArrowDown");
  await bench.waitForActs('select AllRooms "102 Kitchen"');
  // Return presses the button that the list has made the default.
  await page.keyboard.press("Enter");
  await bench.waitForText(bench.field("Rooms"), "102 Kitchen");
  await page.click(`${bench.field("Parts")} [role=option]:nth-child(2) .mark`);
  await page.waitForSelector(`${bench.field("Parts")} [role=option]:nth-child(2)[aria-checked=false]`);
  await page.click(bench.field("Costs"));
  await page.waitForSelector(`${bench.field("Rate")}:not([hidden])`);
  await page.select(bench.field("Trade"), "Masonry");
  await bench.waitFor((field) => document.querySelector(field)?.value.startsWith("DIN"), bench.field("Standard"));

  await page.click(bench.field("NewFinding"));
  await bench.waitFor(() => document.querySelectorAll("#stage .window:not(.message)").length === 2);
  await bench.replaceField(bench.field("Wording"), "Crack");
  await page.keyboard.press("Enter");
  await bench.waitFor(() => document.querySelectorAll("#stage .window:not(.message)").length === 1);
  await bench.waitForText(bench.field("Findings"), "Crack");

  await page.click(bench.field("Pick"));
  await page.waitForSelector("#stage [role=tree] [role=treeitem]");
  const row = (text) => `#stage [role=treeitem] ::-p-text(${text})`;
  await page.click(row("Flat roof"));
  await page.waitForSelector("#stage [role=treeitem][aria-selected=true] ::-p-text(Flat roof)");
  await page.keyboard.press("ArrowRight");
  await page.waitForSelector("#stage [role=treeitem][aria-selected=true][aria-expanded=true]");
  // A heading of the catalogue is refused, by a message on top of all; an entry goes into the field.
  await page.click("#stage .window:nth-last-of-type(2) button.default");
  await page.waitForSelector(".message:not([hidden])");
  await page.keyboard.press("Enter");
  await page.waitForSelector(".message[hidden]");
  await page.click(row("Sealing"));
  await page.waitForSelector("#stage [role=treeitem][aria-selected=true] ::-p-text(Sealing)");
  await page.click("#stage .window:nth-last-of-type(2) button.default");
  await bench.waitFor(() => document.querySelectorAll("#stage .window:not(.message)").length === 1);
  assert.notEqual(await page.$eval(bench.field("Chapter"), (field) => field.value), "");
  assert.deepEqual(bench.trouble, []);
});

test("keys alone reach and do everything in a dialog", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await page.focus(bench.field("Name"));
  await page.keyboard.down("Alt");
  await page.keyboard.press("u");
  await page.keyboard.up("Alt");
  await bench.waitFor((field) => document.activeElement === document.querySelector(field), bench.field("Unit"));
  await page.keyboard.press("Escape");
  await bench.waitForText("#outcome", "Cancelled");
  await page.click("#restart");
  await bench.waitForNoText("#outcome");
});

test("a description that the library refuses leaves the last picture, and its cure is a click", async () => {
  const bench = await (await browser.open()).ready();
  await bench.replace("$VALUES", "$VALUE");
  await bench.waitForText("#outcome", "refuses");
  assert.ok(await bench.page.$(bench.field("Name")));
  await bench.putCursor("$VALUE");
  await bench.page.keyboard.type("S");
  await bench.waitForNoText("#outcome");
  assert.equal(await bench.page.$("#stage.refused"), null);
});
