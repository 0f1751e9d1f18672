// measure.mjs --list | --seconds S WORK: what a user of the page waits for. As the benches do it, a line of JSON for a work, with
// the nanoseconds of each time that it was done.
import { startBrowser } from "./page.mjs";

// In the page. Gives the milliseconds from an act until something below an element has changed.
function untilChange({ watched, begin }) {
  return new Promise((resolve) => {
    const began = performance.now();
    new MutationObserver((_, observer) => {
      observer.disconnect();
      resolve(performance.now() - began);
    }).observe(document.querySelector(watched), { attributes: true, childList: true });
    begin();
  });
}

async function openLargest(browser) {
  const bench = await (await browser.open()).ready();
  await bench.openDialog("lytRpGrp.dlg", "Findings of an inspection");
  await bench.waitForText("#tab-cases", "✓");
  await bench.page.evaluate(`window.untilChange = ${untilChange}`);
  return bench;
}

// The size is the number of controls or lines of the largest sample, and of the page itself 1.
const works = {
  // From the opening to the first dialog, in a browser that has not seen the page before.
  "workbench-open": {
    size: 1,
    async *run(browser) {
      for (;;) {
        const bench = await browser.open("", () => {
          const look = () => {
            const isReady = document.querySelector("#stage [data-target]") && document.querySelector(".cm-content");
            isReady ? (window.readyAt = performance.now()) : requestAnimationFrame(look);
          };
          look();
        });
        await bench.page.waitForFunction("window.readyAt");
        yield await bench.page.evaluate("window.readyAt");
        await bench.page.close();
      }
    },
  },
  "workbench-act": {
    size: 46,
    async *run(browser) {
      const bench = await openLargest(browser);
      for (;;) {
        yield await bench.page.evaluate((costs, rate) => window.untilChange({ watched: rate, begin: () => document.querySelector(costs).click() }), bench.field("Costs"), bench.field("Rate"));
        await bench.page.click("#undo");
        await new Promise((resolve) => setTimeout(resolve, 150));
      }
    },
  },
  "workbench-key": {
    size: 175,
    async *run(browser) {
      const bench = await openLargest(browser);
      for (let turn = 0; ; ++turn) {
        yield await bench.page.evaluate((isWrong) => {
          const { view } = document.querySelector(".cm-content").cmTile;
          const from = view.state.doc.toString().indexOf("Marks = HIDDEN") + "Marks = HIDDEN".length;
          const changes = isWrong ? { from, insert: "X" } : { from, to: from + 1 };
          return window.untilChange({ watched: "#findings", begin: () => view.dispatch({ changes }) });
        }, turn % 2 === 0);
        // The cases and the picture follow, for which a user waits as well.
        await new Promise((resolve) => setTimeout(resolve, 400));
      }
    },
  },
};

const words = process.argv.slice(2);
if (words[0] === "--list") {
  console.log(Object.keys(works).join("\n"));
} else {
  const [, seconds, name] = words;
  const browser = await startBrowser();
  const { size, run } = works[name];
  const times = [];
  const end = performance.now() + seconds * 1000;
  for await (const time of run(browser)) {
    times.push(Math.round(time * 1e6));
    if (performance.now() > end && times.length > 2) {
      break;
    }
  }
  console.log(JSON.stringify({ work: name, size, series: { ours: times } }));
  await browser.close();
}
