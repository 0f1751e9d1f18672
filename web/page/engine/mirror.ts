// Keeps the engine's files as the page has them. The text that is shown is open there as well, so that its findings come by
// themselves.
import { bytesOf, enginePath, isDescription, isLanguageFile, uriOf, type Files } from "../files/files";
import type { Client } from "./client";

export class Mirror {
  private open = "";
  private version = 0;

  constructor(private readonly client: Client, private readonly files: Files) {
    files.changed.on((path) => this.change(path));
    files.activated.on((path) => this.show(path));
  }

  private change(path: string): void {
    const file = this.files.get(path);
    if (file) {
      this.client.write(enginePath(path), bytesOf(file));
    } else {
      this.close(path);
      this.client.remove(enginePath(path));
    }
    if (path === this.open) {
      const textDocument = { uri: uriOf(path), version: ++this.version };
      this.client.tell("textDocument/didChange", { textDocument, contentChanges: [{ text: this.files.textOf(path) }] });
    } else {
      this.client.tell("workspace/didChangeWatchedFiles", { changes: [] });
    }
  }

  private close(path: string): void {
    if (path === this.open) {
      this.open = "";
      this.client.tell("textDocument/didClose", { textDocument: { uri: uriOf(path) } });
    }
  }

  // After the engine has begun anew; it has the files.
  reopen(): void {
    const path = this.open;
    this.open = "";
    this.show(path);
  }

  private show(path: string): void {
    this.close(this.open);
    if (!isDescription(path) && !isLanguageFile(path)) {
      return;
    }
    this.open = path;
    const languageId = isDescription(path) ? "lytdlg" : "lytnls";
    const textDocument = { uri: uriOf(path), languageId, version: ++this.version, text: this.files.textOf(path) };
    this.client.tell("textDocument/didOpen", { textDocument });
  }
}
