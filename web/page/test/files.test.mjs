// Files come in and go out as they are, byte for byte, and work survives a closed page.
import assert from "node:assert/strict";
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { after, before, test } from "node:test";
import { execFileSync } from "node:child_process";
import { startBrowser, temporaryFolder } from "./page.mjs";

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
  for (let count = 0; count < 100; ++count) {
    if (fs.existsSync(file) && fs.statSync(file).size > 0) {
      return fs.readFileSync(file);
    }
    await new Promise((resolve) => setTimeout(resolve, 50));
  }
  throw new Error(`${file} was not saved`);
}

// As dragging a folder in does it, with the files that the browser would give.
async function dropFiles(bench, files) {
  await bench.page.evaluate((all) => {
    const transfer = new DataTransfer();
    for (const { name, bytes } of all) {
      transfer.items.add(new File([Uint8Array.from(bytes)], name));
    }
    document.dispatchEvent(new DragEvent("drop", { dataTransfer: transfer, bubbles: true, cancelable: true }));
  }, files.map(({ name, bytes }) => ({ name, bytes: [...bytes] })));
}

test("all bytes and all line ends come back as they were", async () => {
  const bench = await (await browser.open()).ready();
  const folder = await downloads(bench);
  const whole = Buffer.from([...Array(256).keys()].filter((byte) => byte !== 10 && byte !== 13));
  const bytes = Buffer.concat([Buffer.from("; one\r\n; two\n; three\r\n; "), whole, Buffer.from("\r\n; four\n\r\n; end")]);
  await dropFiles(bench, [{ name: "odd.dlg", bytes }]);
  await bench.waitForText("#tabs", "odd.dlg");
  await bench.putCursor("; three");
  await bench.page.keyboard.type(" ÄÖÜ");
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
  await page.reload();
  await bench.ready();
  await bench.waitForActs('set Name = "volume"');
  assert.match(await bench.editorText(), /^; lytInSym\.dlg Maß/);
  await bench.waitForText("#tabs", "●");
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
