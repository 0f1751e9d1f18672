// Puts the parts of the page together.
import { programFolder } from "../engine/engine.mjs";
import { Bench } from "./bench";
import { CasesPanel } from "./cases/cases";
import { Design } from "./design/design";
import { showActs } from "./dialog/acts";
import { Stage } from "./dialog/stage";
import { showTools } from "./dialog/tools";
import { find, say } from "./dom";
import { Client, startEngine } from "./engine/client";
import type { CaseResult, Initialized } from "./engine/contract";
import { Mirror } from "./engine/mirror";
import { unpacked } from "./files/codepage";
import { Files, isDescription, uriOf } from "./files/files";
import { Disk, download } from "./files/folder";
import { keepAlways, readKept, restore, stateOf } from "./files/keep";
import { addFile, showTabs } from "./files/tabs";
import { Panels } from "./panels";
import { hashOf, stateIn, zipOf } from "./share/share";
import { Editor } from "./text/editor";
import { WayPanel } from "./way/way";
import { WhyPanel } from "./why/why";

type Samples = Record<string, string>;

// The first input of the cases of each description, which shows the most.
async function firstInputs(bench: Bench): Promise<void> {
  const paths = bench.files.paths.filter(isDescription);
  const answers = paths.map((path) =>
    bench.client.ask<{ cases: CaseResult[] }>("lytdlg/cases", { textDocument: { uri: uriOf(path) }, run: false }).catch(() => ({ cases: [] })),
  );
  (await Promise.all(answers)).forEach(({ cases }, index) => {
    const input = cases.find((each) => each.input !== "")?.input;
    if (input !== undefined) {
      bench.scenes.set(paths[index]!, { input, acts: [], undone: [] });
    }
  });
}

async function begin(bench: Bench, preferred: string): Promise<void> {
  bench.scenes.clear();
  bench.dialog = "";
  await firstInputs(bench);
  const descriptions = bench.files.paths.filter(isDescription);
  bench.files.show(descriptions.find((path) => path === preferred) ?? descriptions[0] ?? bench.files.paths[0] ?? "");
  if (!bench.languages.includes(bench.language)) {
    bench.language = bench.languages[0] ?? "";
    bench.turn();
  }
}

async function openSamples(bench: Bench, samples: Samples): Promise<void> {
  bench.files.clear();
  Object.entries(samples).forEach(([path, text]) => bench.files.put(path, unpacked(text), unpacked(text)));
  await begin(bench, "dialogs/lytInSym.dlg");
}

function moveSplitter(): void {
  const splitter = find("splitter");
  const grid = find("splitter").parentElement as HTMLElement;
  const setWidth = (width: number) => {
    const share = Math.min(Math.max(width / grid.clientWidth, 0.2), 0.7);
    grid.style.gridTemplateColumns = `${share * 100}fr 6px ${(1 - share) * 100}fr`;
  };
  splitter.addEventListener("pointerdown", (event) => splitter.setPointerCapture(event.pointerId));
  splitter.addEventListener("pointermove", (event) => splitter.hasPointerCapture(event.pointerId) && setWidth(event.clientX));
  splitter.addEventListener("keydown", (event) => {
    const step = { ArrowLeft: -20, ArrowRight: 20 }[event.key];
    if (step) {
      setWidth(splitter.offsetLeft + step);
    }
  });
}

async function start(): Promise<void> {
  const samples = JSON.parse(find("sample-files").textContent ?? "") as Samples;
  const thread = JSON.parse(find("thread").textContent ?? "") as string;
  const engine = await startEngine(thread, find("module").textContent ?? "");
  engine.onFailure = (reason) => say(`The engine does not work: ${reason}`, true);
  const client = new Client(engine);
  const partners = JSON.parse(find("partner-files").textContent ?? "") as Samples;
  Object.entries(partners).forEach(([path, text]) => client.write(`${programFolder}/${path}`, unpacked(text)));
  const files = new Files();
  // First, so that the engine knows a change before anything is asked about it.
  const mirror = new Mirror(client, files);
  const bench = new Bench(files, client);
  const stage = new Stage(bench);
  const editor = new Editor(bench, stage);
  const panels = new Panels(["acts", "why", "way", "cases"]);
  const failing = (work: () => Promise<unknown>) => () => {
    work().catch((failure: Error) => failure.name !== "AbortError" && say(failure.message, true));
  };

  showTabs(bench);
  showTools(bench, stage);
  showActs(bench);
  new WhyPanel(bench, panels, editor, stage);
  new WayPanel(bench, panels, editor, stage);
  new CasesPanel(bench, panels);
  new Design(bench, editor, stage);
  moveSplitter();

  const disk = new Disk(files, () => void begin(bench, ""));
  const save = failing(async () => say(`${await disk.save()} files saved.`));
  find("open").addEventListener("click", failing(() => disk.openFolder()));
  find("save").addEventListener("click", save);
  find("new-file").addEventListener("click", failing(() => addFile(bench)));
  find("samples").addEventListener("click", () => void openSamples(bench, samples));
  find("format").addEventListener("click", () => editor.format());
  find("search").addEventListener("click", () => editor.search());
  find("zip").addEventListener("click", () => download("dialogs.zip", zipOf(files)));
  find("link").addEventListener("click", failing(async () => {
    window.location.hash = hashOf(stateOf(bench, samples));
    await navigator.clipboard?.writeText(window.location.href).catch(() => undefined);
    say("The address of the page is the link; it holds the texts and the acts.");
  }));
  document.addEventListener("keydown", (event) => {
    if ((event.ctrlKey || event.metaKey) && event.key === "s") {
      event.preventDefault();
      save();
    }
  });
  document.addEventListener("dragover", (event) => {
    if (event.dataTransfer?.types.includes("Files")) {
      event.preventDefault();
      document.body.classList.add("dragging");
    }
  });
  document.addEventListener("dragleave", () => document.body.classList.remove("dragging"));
  document.addEventListener("drop", (event) => {
    document.body.classList.remove("dragging");
    if (event.dataTransfer?.types.includes("Files")) {
      event.preventDefault();
      failing(() => disk.drop(event))();
    }
  });

  const capabilities = { textDocument: { completion: { completionItem: { snippetSupport: true } } } };
  const greet = () => {
    const greeting = client.ask<Initialized>("initialize", { processId: null, rootUri: null, capabilities });
    void greeting.then(({ capabilities: able }) => editor.useKinds(able.semanticTokensProvider.legend.tokenTypes));
    client.tell("initialized", {});
  };
  greet();
  client.on("workbench/restarted", () => {
    greet();
    mirror.reopen();
    bench.draw();
    say("The engine has begun anew after a failure; the text is as it was.", true);
  });
  const kept = stateIn(window.location.hash) ?? readKept();
  if (kept && Object.keys(kept.files).length > 0) {
    restore(bench, kept, samples);
  } else {
    await openSamples(bench, samples);
  }
  keepAlways(bench, samples);
  document.body.dataset["ready"] = "yes";
}

void start();
