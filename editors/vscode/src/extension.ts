// Connects the editor with `lytdlg lsp`, and offers the commands of `lytdlg` for the description at hand.
import * as path from "node:path";
import * as vscode from "vscode";
import { LanguageClient, TransportKind } from "vscode-languageclient/node";
import { Preview } from "./preview";

let client: LanguageClient | undefined;

export async function activate(context: vscode.ExtensionContext): Promise<void> {
  const program = programOf(context);
  client = new LanguageClient(
    "lytdlg",
    "Dialog descriptions",
    { command: program, args: ["lsp"], transport: TransportKind.stdio },
    { documentSelector: [{ language: "lytdlg" }, { language: "lytnls" }, { language: "lytcase" }, { pattern: "**/lyt.ini" }] },
  );
  context.subscriptions.push(client);
  await client.start();

  const preview = new Preview(client);
  const command = (name: string, act: (uri: vscode.Uri) => unknown) =>
    vscode.commands.registerCommand(name, (uri?: vscode.Uri | string) => {
      const chosen = uri ?? vscode.window.activeTextEditor?.document.uri;
      return chosen && act(typeof chosen === "string" ? vscode.Uri.parse(chosen) : chosen);
    });
  context.subscriptions.push(
    preview,
    command("lytdlg.preview", (uri) => preview.show(uri)),
    command("lytdlg.run", (uri) => run(program, uri)),
    command("lytdlg.test", (uri) => runInTerminal(program, ["test", path.dirname(uri.fsPath)])),
    command("lytdlg.why", (uri) => why(program, uri)),
  );
}

export function deactivate(): Promise<void> | undefined {
  return client?.stop();
}

// The one that the user chose, or the one of this system that comes with the extension.
function programOf(context: vscode.ExtensionContext): string {
  const chosen = vscode.workspace.getConfiguration("lytdlg").get<string>("program");
  const name = process.platform === "win32" ? "lytdlg.exe" : "lytdlg";
  return chosen || context.asAbsolutePath(path.join("bin", name));
}

async function run(program: string, uri: vscode.Uri): Promise<void> {
  const input = await vscode.window.showInputBox({ prompt: "The text that the dialog takes apart", value: "" });
  if (input !== undefined) {
    await runInTerminal(program, ["run", uri.fsPath, "--input", input, "--ok"]);
  }
}

async function why(program: string, uri: vscode.Uri): Promise<void> {
  const editor = vscode.window.activeTextEditor;
  const range = editor?.document.getWordRangeAtPosition(editor.selection.active, /\w+/);
  const word = range && editor?.document.getText(range);
  const control = await vscode.window.showInputBox({ prompt: "The name of the control", value: word ?? "" });
  if (control) {
    await runInTerminal(program, ["why", uri.fsPath, control]);
  }
}

// What a command reads is on the disk, so the texts are saved first. The program itself is the terminal's: no shell takes
// an input for its own words.
async function runInTerminal(program: string, words: string[]): Promise<void> {
  await vscode.workspace.saveAll(false);
  const task = new vscode.Task(
    { type: "lytdlg" },
    vscode.TaskScope.Workspace,
    words[0] ?? "",
    "lytdlg",
    new vscode.ProcessExecution(program, words),
  );
  task.presentationOptions = { clear: true, reveal: vscode.TaskRevealKind.Always };
  await vscode.tasks.executeTask(task);
}
