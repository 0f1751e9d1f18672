// The page as a whole: no request, no finding of axe, places and results as the native program has them.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import fs from "node:fs";
import { createRequire } from "node:module";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { after, before, test } from "node:test";
import { lytdlg, startBrowser, temporaryFolder } from "./page.mjs";

const samples = fileURLToPath(new URL("../../../samples", import.meta.url));
const axe = createRequire(import.meta.url).resolve("axe-core/axe.min.js");
let browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());

async function findingsOfAxe(bench) {
  if (!(await bench.page.evaluate(() => "axe" in window))) {
    await bench.page.evaluate(fs.readFileSync(axe, "utf8"));
  }
  return bench.page.evaluate(async () => {
    const { violations } = await window.axe.run(document);
    return violations.flatMap(({ id, nodes }) => nodes.map((node) => `${id}: ${node.html.slice(0, 120)} ${node.any[0]?.message ?? ""}`));
  });
}

test("a page of one file, without a request to anywhere", async () => {
  const bench = await (await browser.open()).ready();
  const { size } = fs.statSync(fileURLToPath(new URL("../out/workbench.html", import.meta.url)));
  assert.ok(size < 4e6, `${size} bytes`);
  const failure = await bench.page.evaluate(() => fetch("data:text/plain,x").then(() => "", (error) => error.message));
  assert.notEqual(failure, "", "the policy of the page forbids requests");
  assert.equal(bench.trouble.filter((each) => !/Content Security|Fetch API/.test(each)).join("\n"), "");
});

test("a failure of the engine's module is survived, with all texts and acts", async () => {
  const bench = await (await browser.open()).ready();
  await bench.replaceField(bench.field("Name"), "volume");
  await bench.waitForActs('set Name = "volume"');
  await bench.page.waitForSelector("#stage[aria-busy=false]");
  const [thread] = bench.page.workers();
  // The next message is the one that fails.
  await thread.evaluate(() => {
    const { parse } = JSON;
    JSON.parse = () => {
      JSON.parse = parse;
      throw new Error("broken");
    };
  });
  await bench.replaceField(bench.field("Digits"), "1");
  await bench.waitForText("#status", "begun anew");
  await bench.page.click(bench.field("Ok"));
  await bench.waitForText("#outcome", "Confirmed");
  assert.equal(await bench.text("#result"), 'S1:volume(1,m2)="n. a."');
  await bench.replace("Mark = HIDDEN", "Mark = HIDEN");
  await bench.waitForText("#findings", "HIDEN");
});

test("axe has no finding, in any part of the page", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.openDialog("lytRpGrp.dlg", "Findings of an inspection");
  await bench.waitForText("#tab-cases", "✓");
  for (const part of ["acts", "why", "way", "cases"]) {
    await page.click(`#tab-${part}`);
    assert.deepEqual(await findingsOfAxe(bench), [], part);
  }
  await page.click("#ghosts");
  await page.click("#design");
  await page.waitForSelector(".overlay .box");
  assert.deepEqual(await findingsOfAxe(bench), [], "design");
  await page.click("#design");
  await page.click(bench.field("Pick"));
  await page.waitForSelector("#stage [role=tree]");
  assert.deepEqual(await findingsOfAxe(bench), [], "catalogue");
});

test("every part is reached with the Tab key, and none holds it", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const reached = new Set();
  await page.focus("#open");
  for (let count = 0; count < 60; ++count) {
    await page.keyboard.press("Tab");
    reached.add(await page.evaluate(() => document.activeElement.id || document.activeElement.closest("[data-target], .cm-editor")?.dataset.target || document.activeElement.className));
    if (await page.evaluate(() => document.activeElement.matches(".cm-content"))) {
      // In a text the Tab key writes nothing; Escape and Tab leave completion and searching as well.
      await page.keyboard.press("Escape");
    }
  }
  for (const name of ["save", "format", "tab-acts", "language", "ghosts", "input", "Name", "Ok", "link"]) {
    assert.ok(reached.has(name), `${name} is not among ${[...reached].join(", ")}`);
  }
});

test("all controls are where the native program draws them", { skip: !lytdlg }, async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const folder = temporaryFolder();
  const looks = ["English", "German"].flatMap((language) => ["96", "120"].map((dpi) => ({ language, dpi })));
  for (const name of fs.readdirSync(path.join(samples, "dialogs")).filter((each) => each.endsWith(".dlg"))) {
    for (const { language, dpi } of looks) {
      const drawing = path.join(folder, `${name}-${language}-${dpi}.svg`);
      execFileSync(lytdlg, ["preview", path.join(samples, "dialogs", name), "--language", language, "--dpi", dpi, "--names", "-o", drawing]);
      const wanted = await page.evaluate((text) => {
        const svg = new DOMParser().parseFromString(text, "image/svg+xml").documentElement;
        const client = [...svg.children].filter((each) => each.tagName === "svg").at(-1);
        const number = (element, attribute) => Number(element.getAttribute(attribute));
        const shown = [...client.querySelectorAll("g > svg")].map((each) => ["x", "y", "width", "height"].map((one) => number(each, one)));
        return shown.map(([x, y, width, height]) => [x + number(client, "x"), y + number(client, "y"), width, height].join());
      }, fs.readFileSync(drawing, "utf8"));
      await page.select("#language", language);
      await page.select("#resolution", dpi);
      await bench.show(`dialogs/${name}`);
      await bench.page.evaluate(() => (document.querySelector("#input").value = ""));
      await page.$eval("#input", (input) => input.dispatchEvent(new Event("input")));
      await bench.waitFor(
        (all) => {
          const elements = [...document.querySelectorAll("#stage .window:not(.message) [data-target]:not([hidden])")];
          const places = elements.map(({ style }) => [style.left, style.top, style.width, style.height].map(parseFloat).join());
          return document.title && JSON.stringify(places.sort()) === all;
        },
        JSON.stringify(wanted.sort()),
      ).catch(async () => {
        const places = await page.$$eval("#stage .window:not(.message) [data-target]:not([hidden])", (all) => all.map(({ style }) => [style.left, style.top, style.width, style.height].map(parseFloat).join()));
        assert.deepEqual(places.sort(), wanted.sort(), `${name} in ${language} at ${dpi}`);
      });
    }
  }
});
