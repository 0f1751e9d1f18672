// The thread that the engine works in. Messages are taken in their order; those that come before the start wait for it.
import createModule from "lytengine";
import { openEngine, type Engine } from "../../engine/engine.mjs";

type ToThread =
  | { kind: "start"; wasm: ArrayBuffer }
  | { kind: "take"; message: object }
  | { kind: "write"; path: string; bytes: Uint8Array }
  | { kind: "remove"; path: string };

let engine: Engine | undefined;
const early: ToThread[] = [];

function work(engine: Engine, message: ToThread): void {
  switch (message.kind) {
    case "take":
      self.postMessage(engine.take(message.message));
      break;
    case "write":
      engine.write(message.path, message.bytes);
      break;
    case "remove":
      engine.remove(message.path);
      break;
  }
}

async function start(wasm: ArrayBuffer): Promise<void> {
  const opened = await openEngine(createModule, wasm);
  early.splice(0).forEach((message) => work(opened, message));
  engine = opened;
}

// Where the page hears of it.
function fail(reason: unknown): void {
  setTimeout(() => {
    throw reason;
  });
}

self.onmessage = (event: MessageEvent<ToThread>) => {
  if (event.data.kind === "start") {
    start(event.data.wasm).catch(fail);
  } else if (engine) {
    work(engine, event.data);
  } else {
    early.push(event.data);
  }
};
