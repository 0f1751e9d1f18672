export interface Engine {
  restart(): Promise<void>;
  take(message: unknown): unknown[];
  work(): unknown[] | undefined;
  write(path: string, bytes: Uint8Array): void;
  read(path: string): Uint8Array;
  remove(path: string): void;
  list(folder: string): string[];
  readonly memory: number;
}

export const programFolder: string;

export function openEngine(
  createModule: (options: { wasmBinary: Uint8Array | ArrayBuffer }) => Promise<unknown>,
  wasmBinary: Uint8Array | ArrayBuffer,
): Promise<Engine>;
