// picture.mjs PAGE PNG: takes the picture of the page for the documents: a dialog that was worked, and why it is so.
import path from "node:path";
import { pathToFileURL } from "node:url";
import { startBrowser } from "./page.mjs";

const [page, picture] = process.argv.slice(2);
const browser = await startBrowser(pathToFileURL(path.resolve(page)).href);
const bench = await (await browser.open()).ready();
await bench.page.click("#ghosts");
await bench.page.click(bench.field("Digits"), { count: 3 });
await bench.page.keyboard.press("Backspace");
await bench.page.waitForSelector(`${bench.field("Unit")}:disabled`);
await bench.page.keyboard.down("Alt");
await bench.page.click(bench.field("Unit"));
await bench.page.keyboard.up("Alt");
await bench.waitForText("#page-why", "Digits");
await bench.waitForText("#tab-cases", "✓");
await bench.page.screenshot({ path: picture });
await browser.close();
