// Random acts and edits: no sequence stops the page, and what it shows is what a fresh page shows of the same state.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { startBrowser } from "./page.mjs";

const count = Number(process.env.LYT_COUNT ?? 60);
let seed = Number(process.env.LYT_SEED ?? 1);
let browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());

function dice(sides) {
  seed = (Math.imul(seed, 1103515245) + 12345) >>> 0;
  return Math.floor((seed / 2 ** 32) * sides);
}

// In the page; a control or a place in the text is chosen by a number.
function actOnControl(number, letter) {
  const windows = [...document.querySelectorAll("#stage .window:not(.message)")];
  const message = document.querySelector("#stage .message:not([hidden]) button");
  const targets = [...windows.at(-1).querySelectorAll("[data-target]:not([hidden])")];
  const control = targets[number % targets.length];
  const field = control?.matches("input, select, button") ? control : control?.querySelector("input, select, [role=option], [role=treeitem]");
  if (message) {
    message.click();
  } else if (!field || field.disabled || field.closest("[inert]")) {
    document.getElementById("undo").click();
  } else if (field.matches(".field")) {
    field.value = letter;
    field.dispatchEvent(new Event("input"));
  } else if (field.matches("select")) {
    field.selectedIndex = number % field.options.length;
    field.dispatchEvent(new Event("change"));
  } else {
    field.click();
  }
}

function edit(number, letter) {
  const { view } = document.querySelector(".cm-content").cmTile;
  const from = number % view.state.doc.length;
  view.dispatch({ changes: number % 2 ? { from, insert: letter } : { from, to: Math.min(from + (number % 3), view.state.doc.length) } });
}

function undoEdit() {
  const content = document.querySelector(".cm-content");
  content.focus();
  content.dispatchEvent(new KeyboardEvent("keydown", { key: "z", ctrlKey: true, bubbles: true, cancelable: true }));
}

// What is seen of the dialog, once nothing more comes.
async function settled(bench) {
  let before;
  for (;;) {
    await bench.page.waitForSelector("#stage[aria-busy=false]");
    await new Promise((resolve) => setTimeout(resolve, 50));
    const now = await bench.page.evaluate(() => {
      const windows = [...document.querySelectorAll("#stage .window:not(.message)")];
      const refused = document.getElementById("stage").classList.contains("refused");
      const stateOf = (each) => [each.dataset.target, each.style.cssText, each.hidden, each.value, each.textContent, each.disabled, each.querySelector("input")?.checked];
      return JSON.stringify(refused ? "refused" : windows.map((window) => [...window.querySelectorAll("[data-target]")].map(stateOf)));
    });
    if (now === before) {
      return now;
    }
    before = now;
  }
}

test(`${count} random acts and edits`, async () => {
  const bench = await (await browser.open()).ready();
  for (const name of ["lytInSym", "finding", "lytRpGrp"]) {
    await bench.page.click("#samples");
    await bench.show(`dialogs/${name}.dlg`);
    for (let step = 0; step < count / 3; ++step) {
      const kind = dice(8);
      const work = kind < 5 ? actOnControl : kind < 7 ? edit : undoEdit;
      await bench.page.evaluate(work, dice(100000), "aZ0,;(\"$ä="[dice(10)]);
      await new Promise((resolve) => setTimeout(resolve, 30));
    }
    const seen = await settled(bench);
    await bench.page.click("#link");
    await bench.waitFor(() => window.location.hash.length > 10);
    const other = await browser.open(await bench.page.evaluate(() => window.location.hash));
    await other.page.waitForSelector("body[data-ready]");
    if (seen !== '"refused"') {
      assert.deepEqual(JSON.parse(await settled(other)), JSON.parse(seen), `${name}: seed ${process.env.LYT_SEED ?? 1}`);
    }
    await other.page.close();
  }
  // And the page is as usable as before.
  await bench.page.click("#samples");
  await bench.openDialog("lytInSym.dlg", "Properties of a value");
  await bench.replaceField(bench.field("Name"), "volume");
  await bench.waitForActs('set Name = "volume"');
  assert.deepEqual(bench.trouble, []);
});
