// The thread that the engine works in. Messages are taken in their order; those that come while the module begins wait for it.
import createModule from "lytengine";
import { openEngine, type Engine } from "../../engine/engine.mjs";

type ToThread =
  | { kind: "start"; wasm: ArrayBuffer }
  | { kind: "take"; message: { id?: number } }
  | { kind: "write"; path: string; bytes: Uint8Array }
  | { kind: "remove"; path: string };

// In milliseconds; longer than between two keys of one who types.
const pause = 300;

let engine: Engine | undefined;
let timer = 0;
const waiting: ToThread[] = [];

// What waits is taken when the module is ready.
function begin(opening: Promise<Engine>): void {
  engine = undefined;
  opening.then((opened) => {
    engine = opened;
    const early = waiting.splice(0);
    early.forEach(receive);
  }, fail);
}

// Where the page hears of it.
function fail(reason: unknown): void {
  setTimeout(() => {
    throw reason;
  });
}

// Only a failure of the module itself is thrown. It begins anew with its files, and the page greets it again.
function use(opened: Engine, work: (opened: Engine) => unknown[] | undefined, rest: number, id?: number): void {
  try {
    const sent = work(opened);
    if (sent) {
      self.postMessage(sent);
      continueAfter(rest);
    }
  } catch (failure) {
    self.postMessage([{ id, error: { message: String(failure) } }, { method: "workbench/restarted", params: {} }]);
    begin(opened.restart().then(() => opened));
  }
}

// What can wait does so until the user pauses: it would hold up the next key.
function continueAfter(rest: number): void {
  clearTimeout(timer);
  timer = setTimeout(() => engine && use(engine, (opened) => opened.work(), 0), rest);
}

function receive(message: ToThread): void {
  if (message.kind === "start") {
    begin(openEngine(createModule, message.wasm));
  } else if (!engine) {
    waiting.push(message);
  } else if (message.kind === "take") {
    use(engine, (opened) => opened.take(message.message), pause, message.message.id);
  } else if (message.kind === "write") {
    engine.write(message.path, message.bytes);
  } else {
    engine.remove(message.path);
  }
}

self.onmessage = (event: MessageEvent<ToThread>) => receive(event.data);
