// What is above and below the dialog: input, language, resolution, ghosts, acts taken back and done again.
import type { Bench } from "../bench";
import { find } from "../dom";
import type { Stage } from "./stage";

function fillChoice(list: HTMLSelectElement, names: string[], chosen: string): void {
  list.replaceChildren(...names.map((name) => new Option(name, name, false, name === chosen)));
}

export function showTools(bench: Bench, stage: Stage): void {
  const input = find<HTMLInputElement>("input");
  const language = find<HTMLSelectElement>("language");
  const resolution = find<HTMLSelectElement>("resolution");
  const undo = find<HTMLButtonElement>("undo");
  const redo = find<HTMLButtonElement>("redo");
  const ghosts = find<HTMLInputElement>("ghosts");

  input.addEventListener("input", () => bench.begin(input.value));
  language.addEventListener("change", () => {
    bench.language = language.value;
    bench.turn();
  });
  resolution.addEventListener("change", () => {
    bench.dpi = Number(resolution.value);
    bench.turn();
  });
  ghosts.addEventListener("change", () => {
    stage.showsGhosts = ghosts.checked;
    stage.redraw();
  });
  undo.addEventListener("click", () => bench.back());
  redo.addEventListener("click", () => bench.forth());
  find("restart").addEventListener("click", () => bench.begin(bench.scene.input));

  const update = () => {
    const { scene } = bench;
    if (input.value !== scene.input) {
      input.value = scene.input;
    }
    fillChoice(language, bench.languages, bench.language);
    resolution.value = String(bench.dpi);
    undo.disabled = scene.acts.length === 0;
    redo.disabled = scene.undone.length === 0;
    find("dialog-name").textContent = bench.dialog.slice(bench.dialog.lastIndexOf("/") + 1);
  };
  bench.turned.on(update);
  bench.files.listed.on(update);
}
