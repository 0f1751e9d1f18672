// Random acts and edits: no sequence stops the page, and what it shows is what the native program says of the same texts and acts.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import fs from "node:fs";
import path from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { inflateRawSync } from "node:zlib";
import { lytdlg, startBrowser, temporaryFolder } from "./page.mjs";

const count = Number(process.env.LYT_COUNT ?? 60);
const firstSeed = Number(process.env.LYT_SEED ?? 1);
const samples = fileURLToPath(new URL("../../../samples", import.meta.url));
let seed = firstSeed;
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

// What is seen of the dialog, once nothing more comes; nothing if the library refuses it.
async function settled(bench) {
  let before;
  for (;;) {
    await bench.page.waitForSelector("#stage[aria-busy=false]");
    await new Promise((resolve) => setTimeout(resolve, 50));
    const now = await bench.page.evaluate(() => {
      const stateOf = (element) => ({
        target: element.dataset.target,
        place: ["left", "top", "width", "height"].map((side) => parseFloat(element.style[side])),
        shown: !element.hidden,
        enabled: !element.classList.contains("disabled"),
        text: element.matches(".field") ? element.value : element.querySelector(".field")?.value,
      });
      const windows = [...document.querySelectorAll("#stage .window:not(.message)")];
      const isRefused = document.getElementById("stage").classList.contains("refused");
      return JSON.stringify(isRefused ? [] : windows.map((window) => [...window.querySelectorAll("[data-target]")].map(stateOf)));
    });
    if (now === before) {
      return JSON.parse(now);
    }
    before = now;
  }
}

// The texts, acts and choices of the page, as its link has them.
async function stateOf(bench) {
  await bench.page.evaluate(() => (window.location.hash = ""));
  await bench.page.click("#link");
  await bench.waitFor(() => window.location.hash.length > 10);
  const hash = await bench.page.evaluate(() => window.location.hash);
  return JSON.parse(inflateRawSync(Buffer.from(hash.slice(1), "base64url")).toString());
}

function askNative(folder, { dialog, language, dpi, scenes }) {
  const { input, acts } = scenes[dialog];
  const textDocument = { uri: pathToFileURL(path.join(folder, dialog)).href };
  const messages = [
    { id: 1, method: "initialize", params: { capabilities: {} } },
    { id: 2, method: "lytdlg/play", params: { textDocument, input, acts, language, dpi } },
    { id: 3, method: "shutdown" },
    { method: "exit" },
  ].map((message) => JSON.stringify({ jsonrpc: "2.0", ...message }));
  const sent = execFileSync(lytdlg, ["lsp"], { input: messages.map((text) => `Content-Length: ${Buffer.byteLength(text)}\r\n\r\n${text}`).join("") });
  const answers = sent.toString().split(/Content-Length: \d+\r\n\r\n/).slice(1).map((text) => JSON.parse(text));
  return answers.find(({ id }) => id === 2).result;
}

// What the page should show of its texts and acts.
async function wanted(bench) {
  const state = await stateOf(bench);
  const folder = temporaryFolder();
  for (const [name, text] of Object.entries(state.files)) {
    fs.mkdirSync(path.dirname(path.join(folder, name)), { recursive: true });
    fs.writeFileSync(path.join(folder, name), text === null ? fs.readFileSync(path.join(samples, name)) : Buffer.from(text, "latin1"));
  }
  const play = askNative(folder, state);
  fs.rmSync(folder, { recursive: true });
  return play.dialogs.map(({ controls }) =>
    controls
      .filter(({ place }) => place)
      .map(({ target, type, place: { x, y, width, height }, shown, enabled, text }) => ({
        target,
        place: [x, y, width, height],
        shown,
        enabled,
        ...(type === "TextBox" || type === "ComboBox" ? { text } : {}),
      })),
  );
}

// Megabytes that the page and its engine hold, once nothing is left to be thrown away.
async function memory(bench) {
  const session = await bench.page.createCDPSession();
  await session.send("HeapProfiler.collectGarbage");
  const { processInfo } = await (await bench.page.browser().target().createCDPSession()).send("SystemInfo.getProcessInfo");
  const pages = processInfo.filter(({ type }) => type === "renderer").map(({ id }) => fs.readFileSync(`/proc/${id}/statm`, "utf8").split(" "));
  return Math.round(pages.reduce((sum, [, resident, shared]) => sum + (resident - shared) * 4096, 0) / 1e6);
}

test(`${count} random acts and edits`, { skip: !lytdlg }, async (context) => {
  const bench = await (await browser.open()).ready();
  const sizes = [await memory(bench)];
  for (const name of ["lytInSym", "finding", "lytRpGrp"]) {
    await bench.openSamples();
    await bench.show(`dialogs/${name}.dlg`);
    for (let step = 1; step <= count / 3; ++step) {
      const kind = dice(8);
      const work = kind < 5 ? actOnControl : kind < 7 ? edit : undoEdit;
      await bench.page.evaluate(work, dice(100000), "aZ0,;(\"$ä="[dice(10)]);
      await new Promise((resolve) => setTimeout(resolve, 30));
      if (step % 5 === 0) {
        assert.deepEqual(await settled(bench), await wanted(bench), `${name}: seed ${firstSeed}, act ${step}`);
      }
    }
    sizes.push(await memory(bench));
  }
  context.diagnostic(`seed ${firstSeed}; ${sizes.join(", ")} MB`);
  // And the page is as usable as before.
  await bench.openSamples();
  await bench.openDialog("lytInSym.dlg", "Properties of a value");
  await bench.replaceField(bench.field("Name"), "volume");
  await bench.waitForActs('set Name = "volume"');
  assert.deepEqual(bench.trouble, []);
});
