// The acts so far, a line each.
import type { Bench } from "../bench";
import { find, make } from "../dom";

export function showActs(bench: Bench): void {
  const list = find("acts");
  let shown = "";
  const update = () => {
    const { acts } = bench.scene;
    const failed = bench.play?.failed?.act ?? -1;
    const now = JSON.stringify([acts, failed]);
    if (now === shown) {
      return;
    }
    shown = now;
    const rows = acts.map((act, index) => {
      const isLost = failed >= 0 && index >= failed;
      return make("li", { class: isLost ? "lost" : "" }, make("code", {}, act));
    });
    list.replaceChildren(...rows);
    find("no-acts").hidden = acts.length > 0;
    // When the page is laid out in any case; earlier, the picture would wait for it.
    requestAnimationFrame(() => list.lastElementChild?.scrollIntoView({ block: "nearest" }));
  };
  bench.turned.on(update);
  bench.drawn.on(update);
}
