// The texts that are worked on. Each is an editor's state, with its own undo; its path begins with the folder that was opened.
import { EditorState, type Extension, type TransactionSpec } from "@codemirror/state";
import type { TextEdit, WorkspaceEdit } from "../engine/contract";
import { Signal } from "../signal";
import { decode, encode, encodingOf, type Encoding } from "./codepage";
import { lineEndsOf, withLineEnds } from "./lineEnds";
import { changesOf } from "../engine/places";

// Where the engine has the files.
const root = "/texts/";

export interface TextFile {
  path: string;
  state: EditorState;
  encoding: Encoding;
  // As it was read or saved last; nothing for a new one.
  saved: Uint8Array | undefined;
}

export function enginePath(path: string): string {
  return root + path;
}

export function uriOf(path: string): string {
  return "file://" + enginePath(path).split("/").map(encodeURIComponent).join("/");
}

export function pathOf(uri: string): string {
  return decodeURIComponent(uri.slice(("file://" + root).length));
}

export function bytesOf(file: TextFile): Uint8Array {
  return encode(withLineEnds(file.state), file.encoding);
}

export function isDescription(path: string): boolean {
  return path.toLowerCase().endsWith(".dlg");
}

export function isLanguageFile(path: string): boolean {
  return path.toLowerCase().endsWith(".nls");
}

export function isCaseFile(path: string): boolean {
  return path.toLowerCase().endsWith(".case");
}

function areEqual(one: Uint8Array, other: Uint8Array | undefined): boolean {
  return one.length === other?.length && one.every((byte, index) => byte === other[index]);
}

export class Files {
  // Texts were added, taken away or saved; their list changes.
  readonly listed = new Signal();
  // Another text is shown.
  readonly activated = new Signal<string>();
  // A text is another than before.
  readonly changed = new Signal<string>();
  active = "";
  // What the editor makes of a text; set once, before the first text is added.
  extensionsFor: (path: string) => Extension = () => [];
  // Takes changes of the text that is shown.
  showsChange: (change: TransactionSpec) => void = () => undefined;
  private readonly all = new Map<string, TextFile>();

  get paths(): string[] {
    return [...this.all.keys()].sort();
  }

  get(path: string): TextFile | undefined {
    return this.all.get(path);
  }

  textOf(path: string): string {
    return this.all.get(path)?.state.doc.toString() ?? "";
  }

  isUnsaved(path: string): boolean {
    const file = this.all.get(path);
    return file !== undefined && !areEqual(bytesOf(file), file.saved);
  }

  put(path: string, bytes: Uint8Array, saved: Uint8Array | undefined): void {
    const encoding = encodingOf(path, bytes);
    const doc = decode(bytes, encoding);
    const state = EditorState.create({ doc, extensions: [lineEndsOf(doc), this.extensionsFor(path)] });
    this.all.set(path, { path, state, encoding, saved });
    this.listed.send();
    this.changed.send(path);
  }

  clear(): void {
    const paths = this.paths;
    this.all.clear();
    this.active = "";
    paths.forEach((path) => this.changed.send(path));
    this.listed.send();
  }

  show(path: string): void {
    if (this.all.has(path) && path !== this.active) {
      this.active = path;
      this.activated.send(path);
    }
  }

  // The editor has made another state of the text that is shown.
  take(state: EditorState): void {
    const file = this.all.get(this.active);
    if (!file) {
      return;
    }
    const isSame = file.state.doc === state.doc;
    file.state = state;
    if (!isSame) {
      this.changed.send(file.path);
    }
  }

  edit(path: string, edits: TextEdit[]): void {
    const file = this.all.get(path);
    if (!file) {
      return;
    }
    const change = { changes: changesOf(file.state.doc, edits), userEvent: "input.edit" };
    if (path === this.active) {
      this.showsChange(change);
    } else {
      file.state = file.state.update(change).state;
      this.changed.send(path);
    }
  }

  // Files that are not there yet begin empty.
  apply(edit: WorkspaceEdit): void {
    for (const [uri, edits] of Object.entries(edit.changes)) {
      const path = pathOf(uri);
      if (!this.all.has(path)) {
        this.put(path, new Uint8Array(), undefined);
      }
      this.edit(path, edits);
    }
  }

  saved(path: string): void {
    const file = this.all.get(path);
    if (file) {
      file.saved = bytesOf(file);
      this.listed.send();
    }
  }
}
