// The picture of a dialog beside its description. It follows each change of the text; a click on a control is an act, which
// the language server takes together with those before it, and answers with the next picture.
import * as vscode from "vscode";
import type { LanguageClient } from "vscode-languageclient/node";
import { pageOf, type FromPage, type Played, type ToPage } from "./page";

export class Preview implements vscode.Disposable {
  private panel: vscode.WebviewPanel | undefined;
  private uri: vscode.Uri | undefined;
  private acts: string[] = [];
  private input = "";
  private newest = 0;
  private readonly listening: vscode.Disposable;

  constructor(private readonly client: LanguageClient) {
    this.listening = vscode.workspace.onDidChangeTextDocument((event) => {
      const isOfDialogs = /\.(dlg|nls)$|lyt\.ini$/i.test(event.document.uri.path);
      if (this.panel && isOfDialogs) {
        void this.draw();
      }
    });
  }

  dispose(): void {
    this.listening.dispose();
    this.panel?.dispose();
  }

  async show(uri: vscode.Uri): Promise<void> {
    this.uri = uri;
    this.acts = [];
    if (!this.panel) {
      const beside = { viewColumn: vscode.ViewColumn.Beside, preserveFocus: true };
      this.panel = vscode.window.createWebviewPanel("lytdlg", "Dialog", beside, { enableScripts: true });
      this.panel.onDidDispose(() => (this.panel = undefined));
      this.panel.webview.onDidReceiveMessage((message: FromPage) => this.take(message));
      this.panel.webview.html = pageOf();
    }
    await this.draw();
  }

  private async take(message: FromPage): Promise<void> {
    if (message.kind === "act") {
      this.acts.push(message.act);
    } else if (message.kind === "back") {
      this.acts.pop();
    } else {
      this.input = message.input;
      this.acts = [];
    }
    await this.draw();
  }

  private async draw(): Promise<void> {
    const own = ++this.newest;
    const settings = vscode.workspace.getConfiguration("lytdlg");
    const answer = await this.client
      .sendRequest<Played>("lytdlg/play", {
        textDocument: { uri: this.uri?.toString() },
        input: this.input,
        language: settings.get("language"),
        dpi: settings.get("resolution"),
        acts: this.acts,
        svg: true,
      })
      .then(
        (played) => ({ played }),
        (failure: Error) => ({ error: failure.message }),
      );
    // An older answer that comes late is no longer wanted.
    if (own === this.newest) {
      await this.panel?.webview.postMessage({ ...answer, acts: this.acts } satisfies ToPage);
    }
  }
}
