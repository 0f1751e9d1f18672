// Files come in and go out as they are, byte for byte, and work survives a closed page.
import assert from "node:assert/strict";
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { after, before, test } from "node:test";
import { execFileSync } from "node:child_process";
import { limit, startBrowser, temporaryFolder } from "./page.mjs";

const samples = fileURLToPath(new URL("../../../samples", import.meta.url));
let browser;
before(async () => (browser = await startBrowser()));
after(() => browser.close());

// Where the page saves files to.
async function downloads(bench) {
  const folder = temporaryFolder();
  const session = await bench.page.createCDPSession();
  await session.send("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: folder, browserContextId: bench.page.browserContext().id });
  return folder;
}

async function arrived(file) {
  const end = Date.now() + limit;
  while (!fs.existsSync(file) || fs.statSync(file).size === 0) {
    assert.ok(Date.now() < end, `${file} was not saved`);
    await new Promise((resolve) => setTimeout(resolve, 50));
  }
  return fs.readFileSync(file);
}

// Files and folders of the disk, dragged into the page.
async function dragIn(bench, ...files) {
  const session = await bench.page.createCDPSession();
  for (const type of ["dragEnter", "dragOver", "drop"]) {
    await session.send("Input.dispatchDragEvent", { type, x: 300, y: 300, data: { items: [], files, dragOperationsMask: 1 } });
  }
}

const opened = (bench, folder) => bench.page.waitForSelector(`#tabs [aria-selected=true][title^="${folder}/"]`);

// In the page: the browser's way to a folder, over files in memory. A person would have to answer the browser's own dialog.
function openFolderInMemory(root, files) {
  window.disk = new Map(Object.entries(files));
  const fileAt = (path) => ({
    kind: "file",
    name: path.slice(path.lastIndexOf("/") + 1),
    getFile: async () => new File([Uint8Array.from(window.disk.get(path))], path),
    async createWritable() {
      let written;
      return { write: async (bytes) => (written = [...bytes]), close: async () => window.disk.set(path, written) };
    },
  });
  const folderAt = (folder, name) => ({
    kind: "directory",
    name,
    async *values() {
      const names = new Set([...window.disk.keys()].filter((path) => path.startsWith(folder)).map((path) => path.slice(folder.length).split("/")[0]));
      for (const each of names) {
        yield window.disk.has(folder + each) ? fileAt(folder + each) : folderAt(`${folder}${each}/`, each);
      }
    },
    getDirectoryHandle: async (each) => folderAt(`${folder}${each}/`, each),
    getFileHandle: async (each) => fileAt(folder + each),
  });
  window.showDirectoryPicker = async () => folderAt("", root);
}

const diskFile = async (bench, name) => Buffer.from(await bench.page.evaluate((each) => window.disk.get(each), name));

test("a folder is opened, and what was changed is saved into it, byte for byte", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const names = ["dialogs/lytInSym.dlg", "dialogs/lang/English.nls", "dialogs/lang/German.nls", "cases/symbol.case"];
  const files = Object.fromEntries(names.map((name) => [name, [...fs.readFileSync(path.join(samples, name))]]));
  await page.evaluate(openFolderInMemory, "inspection", { ...files, "picture.bmp": [1, 2, 3] });
  await page.click("#open");
  await opened(bench, "inspection");
  await bench.waitForText("#stage .window .title", "Properties of a value");
  const offered = await page.$$eval("#other-files option", (all) => all.map((option) => option.value).filter((value) => value));
  assert.deepEqual(offered, names.map((name) => `inspection/${name}`).sort());
  await bench.putCursor("; lytInSym.dlg");
  await page.keyboard.type(" für Ä");
  await bench.show("inspection/dialogs/lang/German.nls");
  await bench.replace("Title=Eigenschaften eines Wertes", "Title=Maß");
  await page.click("#new-file");
  await page.waitForSelector("dialog.ask input");
  await page.keyboard.type("lang/Danish.nls");
  await page.keyboard.press("Enter");
  await bench.waitForText("#tabs [aria-selected=true]", "Danish.nls");
  await page.focus(".cm-content");
  await page.keyboard.type("; Blåbær");
  await bench.holding(["Control"], () => page.keyboard.press("s"));
  await bench.waitForText("#status", "3 files saved");
  const was = (name) => fs.readFileSync(path.join(samples, name)).toString("latin1");
  const wanted = {
    "dialogs/lytInSym.dlg": was("dialogs/lytInSym.dlg").replace("; lytInSym.dlg", "; lytInSym.dlg für Ä"),
    "dialogs/lang/German.nls": was("dialogs/lang/German.nls").replace("Title=Eigenschaften eines Wertes", "Title=Maß"),
    "dialogs/lang/Danish.nls": "; Blåbær",
    "dialogs/lang/English.nls": was("dialogs/lang/English.nls"),
  };
  for (const [name, text] of Object.entries(wanted)) {
    assert.equal((await diskFile(bench, name)).toString("latin1"), text, name);
  }
  await page.waitForFunction(() => !document.querySelector("#tabs .star"));
  assert.deepEqual(bench.trouble, []);
});

test("a folder that is dragged in is worked on with all that is below it", async () => {
  const bench = await (await browser.open()).ready();
  const folder = path.join(temporaryFolder(), "inspection");
  for (const part of ["dialogs", "cases"]) {
    fs.cpSync(path.join(samples, part), path.join(folder, part), { recursive: true });
  }
  await dragIn(bench, folder);
  await opened(bench, "inspection");
  assert.ok(await bench.page.$("#other-files option[value='inspection/dialogs/lang/German.nls']"));
  await bench.show("inspection/dialogs/lytInSym.dlg");
  await bench.waitForText("#stage .window .title", "Properties of a value");
  await bench.waitForText("#tab-cases", "✓");
  assert.deepEqual(bench.trouble, []);
});

test("files that are dragged in belong together", async () => {
  const bench = await (await browser.open()).ready();
  await dragIn(bench, ...["lytInSym.dlg", "lang/English.nls", "lang/German.nls"].map((name) => path.join(samples, "dialogs", name)));
  await opened(bench, "dropped");
  await bench.waitForText("#stage .window .title", "Properties of a value");
  await bench.page.select("#language", "German");
  await bench.waitForText("#stage .window .title", "Eigenschaften eines Wertes");
  assert.deepEqual(bench.trouble, []);
});

test("the tabs are the dialog, its languages and its cases", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  const tabs = () => page.$$eval("#tabs [role=tab]", (all) => all.map((tab) => tab.textContent));
  assert.deepEqual(await tabs(), ["lytInSym.dlg", "English.nls", "German.nls", "symbol.case"]);
  await page.click("#tabs ::-p-text(German.nls)");
  await bench.waitForText("#tabs [aria-selected=true]", "German.nls");
  assert.match(await bench.editorText(), /Title=Eigenschaften/);
  await page.focus("#tabs [aria-selected=true]");
  await page.keyboard.press("ArrowRight");
  await bench.waitForText("#tabs [aria-selected=true]", "symbol.case");
  assert.match(await bench.editorText(), /^case:/m);
});

test("all bytes and all line ends come back as they were", async () => {
  const bench = await (await browser.open()).ready();
  const folder = await downloads(bench);
  const whole = Buffer.from([...Array(256).keys()].filter((byte) => byte !== 10 && byte !== 13));
  const bytes = Buffer.concat([Buffer.from("; one\r\n; two\n; three\r\n; "), whole, Buffer.from("\r\n; four\n\r\n; end")]);
  fs.writeFileSync(path.join(folder, "odd.dlg"), bytes);
  await dragIn(bench, path.join(folder, "odd.dlg"));
  await opened(bench, "dropped");
  await bench.putCursor("; three");
  await bench.page.keyboard.type(" ÄÖÜ");
  fs.rmSync(path.join(folder, "odd.dlg"));
  await bench.page.click("#save");
  const saved = await arrived(path.join(folder, "odd.dlg"));
  const wanted = Buffer.from(bytes.toString("latin1").replace("; three", "; three ÄÖÜ"), "latin1");
  assert.deepEqual([...saved], [...wanted]);
});

test("unsaved work is there when the page is opened again", async () => {
  const bench = await (await browser.open()).ready();
  const { page } = bench;
  await bench.replaceField(bench.field("Name"), "volume");
  await bench.putCursor("; lytInSym.dlg");
  await page.keyboard.type(" Maß");
  await bench.waitForText("#tabs", "●");
  const again = await (await browser.reopen(bench)).ready();
  await again.waitForActs('set Name = "volume"');
  assert.match(await again.editorText(), /^; lytInSym\.dlg Maß/);
  await again.waitForText("#tabs", "●");
});

test("what the browser cannot keep is not closed unasked", async () => {
  const full = () => (Storage.prototype.setItem = () => { throw new DOMException("full", "QuotaExceededError"); });
  const bench = await (await browser.open("", full)).ready();
  const { page } = bench;
  await bench.putCursor("; lytInSym.dlg");
  await page.keyboard.type(" more");
  await bench.waitForText("#status", "save them before you close the page");
  const asked = new Promise((resolve) => page.once("dialog", resolve));
  await page.close({ runBeforeUnload: true });
  const question = await asked;
  assert.equal(question.type(), "beforeunload");
  await question.accept();
});

test("a link holds texts and acts, and opens them elsewhere", async () => {
  const bench = await (await browser.open()).ready();
  await bench.replaceField(bench.field("Name"), "volume");
  await bench.replace("Advice = INVISIBLE", "Advice = HIDDEN");
  await bench.page.click("#link");
  await bench.waitFor(() => window.location.hash.length > 10);
  const hash = await bench.page.evaluate(() => window.location.hash);
  const other = await (await browser.open(hash)).ready();
  await other.waitForActs('set Name = "volume"');
  assert.match(await other.editorText(), /Advice = HIDDEN/);
});

test("the zip has all files as they are", async () => {
  const bench = await (await browser.open()).ready();
  const folder = await downloads(bench);
  await bench.page.click("#zip");
  await arrived(path.join(folder, "dialogs.zip"));
  execFileSync("cmake", ["-E", "tar", "xf", "dialogs.zip"], { cwd: folder });
  for (const name of ["dialogs/lytRpGrp.dlg", "dialogs/lang/German.nls", "cases/findings.case", "init/lyt.ini"]) {
    assert.deepEqual(fs.readFileSync(path.join(folder, name)), fs.readFileSync(path.join(samples, name)), name);
  }
});

test("a new file begins as a dialog that opens", async () => {
  const bench = await (await browser.open()).ready();
  await bench.page.click("#new-file");
  await bench.page.waitForSelector("dialog.ask input");
  await bench.page.keyboard.type("mine.dlg");
  await bench.page.keyboard.press("Enter");
  await bench.waitForText("#dialog-name", "mine.dlg");
  await bench.waitFor((field) => document.querySelector(field), bench.field("Ok"));
  assert.deepEqual(bench.trouble, []);
});
