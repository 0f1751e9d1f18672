// The page of the panel in a browser, with the real server: a user acts in the picture, and the next picture comes.
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import puppeteer from "puppeteer-core";
import { pageOf } from "../out/page.mjs";
import { startServer } from "./server.mjs";

let server;
let browser;
let page;
let acts;

async function draw() {
  const request = {
    textDocument: { uri: server.uriOf("lytInSym.dlg") },
    input: "S1:area(2,m2)",
    language: "English",
    dpi: 96,
    acts,
    svg: true,
  };
  const answer = { played: await server.ask("lytdlg/play", request), acts };
  await page.evaluate((data) => window.postMessage(data, "*"), answer);
}

before(async () => {
  server = await startServer();
  await server.open("lytInSym.dlg");
  browser = await puppeteer.launch({ executablePath: "/usr/bin/chromium", args: ["--no-sandbox"] });
  page = await browser.newPage();
  // In place of the editor's own end of the panel.
  await page.exposeFunction("tell", async (message) => {
    acts = message.kind === "act" ? [...acts, message.act] : acts.slice(0, -1);
    await draw();
  });
  await page.evaluateOnNewDocument(() => {
    window.acquireVsCodeApi = () => ({ postMessage: (message) => window.tell(message) });
  });
  acts = [];
  await page.goto("about:blank");
  await page.setContent(pageOf());
  await draw();
});
after(async () => {
  await browser.close();
  await server.stop();
});

const shown = (name) => page.$eval(`#${name}`, (element) => element.textContent);

test("the picture follows what is typed and clicked, and goes back", async () => {
  await page.waitForSelector("#picture svg");
  await page.click('#picture [title="Digits"]', { count: 3 });
  await page.keyboard.press("Delete");
  await page.keyboard.press("Tab");
  await page.waitForFunction(() => document.getElementById("acts").textContent.includes("set Digits"));
  assert.equal(await page.$('#picture [title="Unit"]'), null, "a disabled field takes no act");

  await page.click("#back");
  await page.waitForSelector('#picture [title="Unit"]');
  await page.click('#picture [title="Ok"]');
  await page.waitForFunction(() => document.getElementById("told").textContent.includes("S1:area(2,m2)"));
  assert.match(await shown("told"), /confirmed/);
});

test("a text that the library refuses leaves the last picture", async () => {
  await server.change("lytInSym.dlg", "$VALUES", "$VALUE");
  acts = [];
  await draw();
  await page.waitForFunction(() => document.getElementById("told").textContent.includes("refuses"));
  assert.ok(await page.$("#picture svg"));
});
