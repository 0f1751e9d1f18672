// The texts as tabs, descriptions first.
import type { Bench } from "../bench";
import { ask, find, make } from "../dom";
import { isCaseFile, isDescription, isLanguageFile } from "./files";

function nameOf(path: string): string {
  return path.slice(path.lastIndexOf("/") + 1);
}

export function showTabs(bench: Bench): void {
  const { files } = bench;
  const bar = find("tabs");
  const other = find<HTMLSelectElement>("other-files");

  function step(event: KeyboardEvent): void {
    const tabs = [...bar.children] as HTMLElement[];
    const at = tabs.indexOf(event.target as HTMLElement);
    const to = { ArrowRight: at + 1, ArrowLeft: at - 1, Home: 0, End: tabs.length - 1 }[event.key];
    const tab = to === undefined ? undefined : tabs[(to + tabs.length) % tabs.length];
    if (tab) {
      event.preventDefault();
      tab.click();
      (bar.querySelector('[aria-selected="true"]') as HTMLElement | null)?.focus();
    }
  }
  bar.addEventListener("keydown", step);

  const update = () => {
    const kinds = [isDescription, isLanguageFile, isCaseFile];
    const { dialog } = bench;
    const ownCase = (path: string) => isCaseFile(path) && files.textOf(path).includes(`/${nameOf(dialog)}`);
    // A set has many files: the tabs are those that belong to the dialog, and the list has them all.
    const isNear = (path: string) => path === dialog || isLanguageFile(path) || ownCase(path) || path === files.active || files.isUnsaved(path);
    const rank = (path: string) => kinds.findIndex((kind) => kind(path));
    const near = files.paths.filter(isNear).sort((one, two) => rank(one) - rank(two));
    const tabs = near.map((path) => {
      const isActive = path === files.active;
      const star = files.isUnsaved(path) ? make("span", { class: "star", title: "not saved" }, "●") : "";
      const tab = make(
        "button",
        { type: "button", role: "tab", "aria-selected": String(isActive), "aria-controls": "editor", tabindex: isActive ? 0 : -1, title: path },
        nameOf(path),
        star,
      );
      tab.addEventListener("click", () => files.show(path));
      return tab;
    });
    const hadFocus = bar.contains(document.activeElement);
    bar.replaceChildren(...tabs);
    const active = bar.querySelector<HTMLElement>('[aria-selected="true"]');
    active?.scrollIntoView({ block: "nearest", inline: "nearest" });
    if (hadFocus) {
      active?.focus();
    }
    other.replaceChildren(new Option("More files", ""), ...files.paths.map((path) => new Option(path, path)));
  };
  other.addEventListener("change", () => {
    files.show(other.value);
    other.value = "";
  });
  files.listed.on(update);
  files.activated.on(update);
  let wait = 0;
  files.changed.on(() => {
    window.clearTimeout(wait);
    wait = window.setTimeout(update, 200);
  });
}

// A text with the least that a description needs, in the folder of the dialog.
export async function addFile(bench: Bench): Promise<void> {
  const folder = bench.dialog.slice(0, bench.dialog.lastIndexOf("/") + 1);
  const answer = await ask("New file", [{ name: "Name", value: "new.dlg" }]);
  const name = answer?.[0]?.trim();
  if (!name) {
    return;
  }
  const path = folder + name;
  if (!bench.files.get(path)) {
    const lines = isDescription(path)
      ? [
          "$VERSION 1", "$LAYOUT", "Begin Dialog Box 320, 110, \"Title\", .Main", "    OKButton      60, 76, 112, 22, .Ok",
          "    CancelButton 184, 76, 112, 22, .Cancel", "End Dialog", "$VALUES", "$DEPENDANCES", "$EVALUATION, x", "$INPUT, parent",
          "    ; nothing to take apart", "$OUTPUT, parent", "    (\"\")", "$END", "",
        ]
      : [""];
    bench.files.put(path, new TextEncoder().encode(lines.join("\r\n")), undefined);
  }
  bench.files.show(path);
}
