// The page's end of the engine: requests with their answers, notifications, and the files in its memory. The engine works in
// a thread of the browser, so that typing never waits for it.

export interface Engine {
  take(message: object): void;
  write(path: string, bytes: Uint8Array): void;
  remove(path: string): void;
  // Called with each message that the engine sends.
  onMessage: (message: Answer) => void;
  // Called when the engine cannot work.
  onFailure: (reason: string) => void;
}

export interface Answer {
  id?: number;
  method?: string;
  params?: unknown;
  result?: unknown;
  error?: { message: string };
}

type Waiting = { resolve: (result: never) => void; reject: (failure: Error) => void };

export class Client {
  private readonly waiting = new Map<number, Waiting>();
  private readonly heard = new Map<string, (params: never) => void>();
  private last = 0;

  constructor(private readonly engine: Engine) {
    engine.onMessage = (message) => this.receive(message);
  }

  ask<T>(method: string, params: object): Promise<T> {
    const id = ++this.last;
    const answer = new Promise<T>((resolve, reject) => this.waiting.set(id, { resolve, reject }));
    this.engine.take({ jsonrpc: "2.0", id, method, params });
    return answer;
  }

  tell(method: string, params: object): void {
    this.engine.take({ jsonrpc: "2.0", method, params });
  }

  on<T>(method: string, listener: (params: T) => void): void {
    this.heard.set(method, listener);
  }

  write(path: string, bytes: Uint8Array): void {
    this.engine.write(path, bytes);
  }

  remove(path: string): void {
    this.engine.remove(path);
  }

  private receive(message: Answer): void {
    if (message.method !== undefined || message.id === undefined) {
      this.heard.get(message.method ?? "")?.(message.params as never);
      return;
    }
    const waiting = this.waiting.get(message.id);
    this.waiting.delete(message.id);
    if (message.error) {
      waiting?.reject(new Error(message.error.message));
    } else {
      waiting?.resolve(message.result as never);
    }
  }
}

// A text in base64 of bytes that were packed by gzip.
async function unpacked(text: string): Promise<ArrayBuffer> {
  const bytes = Uint8Array.from(atob(text), (letter) => letter.charCodeAt(0));
  return new Response(new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"))).arrayBuffer();
}

// What is sent before the module is ready waits in the thread.
export async function startEngine(code: string, module: string): Promise<Engine> {
  const thread = new Worker(URL.createObjectURL(new Blob([code], { type: "text/javascript" })));
  const engine: Engine = {
    take: (message) => thread.postMessage({ kind: "take", message }),
    write: (path, bytes) => thread.postMessage({ kind: "write", path, bytes }),
    remove: (path) => thread.postMessage({ kind: "remove", path }),
    onMessage: () => undefined,
    onFailure: () => undefined,
  };
  thread.onmessage = (event: MessageEvent<Answer[]>) => event.data.forEach((message) => engine.onMessage(message));
  thread.onerror = (event) => engine.onFailure(event.message);
  const wasm = await unpacked(module);
  thread.postMessage({ kind: "start", wasm }, [wasm]);
  return engine;
}
