// Work that survives a closed tab, and the state as one record that fits into a link.
import type { Bench, Scene } from "../bench";
import { say } from "../dom";
import { packed, unpacked } from "./codepage";
import { bytesOf, type Files } from "./files";

export interface Kept {
  // Contents by path, a character for each byte; null where it is the sample of that name.
  files: Record<string, string | null>;
  unsaved: string[];
  active: string;
  dialog: string;
  language: string;
  dpi: number;
  scenes: Record<string, Scene>;
}

const key = "lytdlg-workbench";

export function stateOf(bench: Bench, samples: Record<string, string>): Kept {
  const { files } = bench;
  const texts = files.paths.map((path) => {
    const file = files.get(path);
    const text = file ? packed(bytesOf(file)) : "";
    return [path, text === samples[path] ? null : text] as const;
  });
  return {
    files: Object.fromEntries(texts),
    unsaved: files.paths.filter((path) => files.isUnsaved(path)),
    active: files.active,
    dialog: bench.dialog,
    language: bench.language,
    dpi: bench.dpi,
    scenes: Object.fromEntries(bench.scenes),
  };
}

function putAll(files: Files, kept: Kept, samples: Record<string, string>): void {
  for (const [path, text] of Object.entries(kept.files)) {
    const bytes = unpacked(text ?? samples[path] ?? "");
    const sample = samples[path];
    const before = sample === undefined ? undefined : unpacked(sample);
    files.put(path, bytes, kept.unsaved.includes(path) ? before : bytes);
  }
}

export function restore(bench: Bench, kept: Kept, samples: Record<string, string>): void {
  bench.files.clear();
  putAll(bench.files, kept, samples);
  bench.scenes.clear();
  Object.entries(kept.scenes).forEach(([path, scene]) => bench.scenes.set(path, scene));
  bench.language = kept.language;
  bench.dpi = kept.dpi;
  bench.files.show(kept.dialog);
  bench.files.show(kept.active);
}

export function readKept(): Kept | undefined {
  try {
    const text = localStorage.getItem(key);
    return text === null ? undefined : (JSON.parse(text) as Kept);
  } catch {
    return undefined;
  }
}

// A little after each change, and when the page is left. Where the browser keeps nothing, or not so much, texts that are not saved
// would be lost with the page, so the user hears of it, and is asked before the page closes.
export function keepAlways(bench: Bench, samples: Record<string, string>): void {
  let timer = 0;
  let isKept = true;
  const isUnsaved = () => bench.files.paths.some((path) => bench.files.isUnsaved(path));
  const save = () => {
    window.clearTimeout(timer);
    timer = 0;
    try {
      localStorage.setItem(key, JSON.stringify(stateOf(bench, samples)));
      isKept = true;
    } catch {
      if (isKept && isUnsaved()) {
        say("The browser cannot keep these texts: save them before you close the page.", true);
        isKept = false;
      }
    }
  };
  const later = () => (timer ||= window.setTimeout(save, 500));
  bench.files.changed.on(later);
  bench.files.activated.on(later);
  bench.turned.on(later);
  window.addEventListener("pagehide", () => timer !== 0 && save());
  window.addEventListener("beforeunload", (event) => !isKept && isUnsaved() && event.preventDefault());
}
