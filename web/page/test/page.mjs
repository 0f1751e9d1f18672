// The page in a browser without a screen, as a user has it who opened it from a folder. All tests of a file share the browser.
import assert from "node:assert/strict";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import puppeteer from "puppeteer-core";

// Milliseconds against hangs, some thirty times what the slowest answer takes on an idle machine.
export const limit = 60000 * Number(process.env.LYT_PATIENCE ?? 1);
// The native program, if the page is to be compared with it.
export const lytdlg = process.env.LYTDLG && fs.statSync(process.env.LYTDLG).isFile() ? process.env.LYTDLG : undefined;
const file = fileURLToPath(new URL("../out/workbench.html", import.meta.url));

export async function startBrowser(address = pathToFileURL(file).href) {
  const browser = await puppeteer.launch({
    executablePath: "/usr/bin/chromium",
    // Containers have little shared memory.
    args: ["--no-sandbox", "--disable-dev-shm-usage"],
    timeout: limit,
    protocolTimeout: 3 * limit,
  });
  async function openIn(context, end = "", before = () => undefined) {
    const page = await context.newPage();
    await page.setViewport({ width: 1366, height: 768 });
    page.setDefaultTimeout(limit);
    const trouble = [];
    page.on("pageerror", (error) => trouble.push(error.message));
    page.on("console", (message) => message.type() === "error" && trouble.push(message.text()));
    page.on("request", (request) => /^(file|blob|data):/.test(request.url()) || trouble.push(request.url()));
    await page.evaluateOnNewDocument(before);
    await page.goto(address + end);
    return new Bench(page, trouble);
  }
  return {
    // A page that knows nothing of others. What it asked for from elsewhere and what went wrong in it is kept.
    async open(end = "", before = () => undefined) {
      return openIn(await browser.createBrowserContext(), end, before);
    },
    // The same browser once more, after its page was closed.
    async reopen(bench) {
      const context = bench.page.browserContext();
      await bench.page.close();
      return openIn(context);
    },
    close: () => browser.close(),
  };
}

export class Bench {
  constructor(page, trouble) {
    this.page = page;
    this.trouble = trouble;
  }

  async ready() {
    await this.page.waitForSelector("body[data-ready]");
    await this.page.waitForSelector("#stage .window:not(.message)");
    return this;
  }

  show(path) {
    return this.page.select("#other-files", path);
  }

  // The samples afresh; until their inputs are known, no tab is chosen.
  async openSamples() {
    await this.page.click("#samples");
    await this.page.waitForSelector("#tabs [aria-selected=true]");
  }

  // A description in the editor, and its dialog.
  async openDialog(name, title) {
    await this.show(`dialogs/${name}`);
    await this.waitFor((wanted) => document.querySelector("#stage .window .title")?.textContent === wanted, title);
  }

  // While keys are held down.
  async holding(keys, work) {
    for (const key of keys) {
      await this.page.keyboard.down(key);
    }
    await work();
    await Promise.all(keys.map((key) => this.page.keyboard.up(key)));
  }

  waitFor(condition, ...words) {
    return this.page.waitForFunction(condition, { timeout: limit }, ...words);
  }

  // Of the window on top.
  field(target) {
    return `#stage .window:nth-last-of-type(2) [data-target="${target}"]`;
  }

  text(selector) {
    return this.page.$eval(selector, (element) => element.textContent.trim());
  }

  acts() {
    return this.page.$$eval("#acts li", (rows) => rows.map((row) => row.textContent));
  }

  async waitForActs(...acts) {
    const isThere = (wanted) => [...document.querySelectorAll("#acts li")].map((row) => row.textContent).join("\n") === wanted;
    await this.waitFor(isThere, acts.join("\n")).catch(async () => assert.deepEqual(await this.acts(), acts, await this.text("#status")));
  }

  waitForText(selector, part) {
    return this.waitFor((where, wanted) => document.querySelector(where)?.textContent.includes(wanted), selector, part);
  }

  waitForNoText(selector) {
    return this.waitFor((where) => document.querySelector(where).textContent === "", selector);
  }

  // The text of the editor, whole.
  editorText() {
    return this.page.$eval(".cm-content", (content) => content.cmTile.view.state.doc.toString());
  }

  // The cursor after the first occurrence of a text.
  async putCursor(after) {
    await this.page.$eval(
      ".cm-content",
      (content, wanted) => {
        const { view } = content.cmTile;
        const anchor = view.state.doc.toString().indexOf(wanted) + wanted.length;
        view.dispatch({ selection: { anchor }, scrollIntoView: true });
        view.focus();
      },
      after,
    );
  }

  // A text in place of another, as typed.
  async replace(from, to) {
    await this.putCursor(from);
    for (let count = 0; count < from.length; ++count) {
      await this.page.keyboard.press("Backspace");
    }
    await this.page.keyboard.type(to);
  }

  async replaceField(selector, text) {
    await this.page.click(selector, { count: 3 });
    await this.page.keyboard.type(text);
  }
}

export function temporaryFolder() {
  return fs.mkdtempSync(path.join(os.tmpdir(), "workbench-"));
}
