// The extension with the real server, in place of an editor: its modules `vscode` and `vscode-languageclient` are small
// substitutes that keep what the extension registers, shows and runs.
import assert from "node:assert/strict";
import { createRequire } from "node:module";
import { after, before, test } from "node:test";
import { startServer } from "./server.mjs";

const require = createRequire(import.meta.url);
const Module = require("node:module");

let server;
const commands = new Map();
const changed = [];
const panels = [];
const tasks = [];
const clients = [];
const saved = [];
const settings = { program: process.env.LYTDLG, language: "English", resolution: 96 };
const asProposed = Symbol("the value that the box begins with");
let answerOfUser;
let activeTextEditor;

class Panel {
  shown = [];
  webview = {
    html: "",
    onDidReceiveMessage: (take) => (this.take = take),
    postMessage: async (message) => this.shown.push(message),
  };
  onDidDispose(forget) {
    this.dispose = forget;
  }
}

const vscode = {
  Uri: { parse: (text) => ({ toString: () => text, fsPath: new URL(text).pathname, path: new URL(text).pathname }) },
  ViewColumn: { Beside: -2 },
  TaskScope: { Workspace: 2 },
  TaskRevealKind: { Always: 1 },
  Task: class {
    constructor(definition, scope, name, source, execution) {
      Object.assign(this, { name, execution });
    }
  },
  ProcessExecution: class {
    constructor(program, words) {
      Object.assign(this, { program, words });
    }
  },
  commands: {
    registerCommand(name, act) {
      commands.set(name, act);
      return { dispose: () => commands.delete(name) };
    },
  },
  tasks: { executeTask: async (task) => tasks.push(task) },
  window: {
    get activeTextEditor() {
      return activeTextEditor;
    },
    createWebviewPanel: () => panels[panels.push(new Panel()) - 1],
    showInputBox: async ({ value }) => (answerOfUser === asProposed ? value : answerOfUser),
  },
  workspace: {
    getConfiguration: () => ({ get: (name) => settings[name] }),
    onDidChangeTextDocument(listener) {
      changed.push(listener);
      return { dispose: () => changed.splice(changed.indexOf(listener), 1) };
    },
    saveAll: async (untitled) => saved.push(untitled),
  },
};

class LanguageClient {
  constructor(id, name, serverOptions, clientOptions) {
    Object.assign(this, { serverOptions, clientOptions, isRunning: false });
    clients.push(this);
  }
  async start() {
    this.isRunning = true;
  }
  async stop() {
    this.isRunning = false;
  }
  dispose() {}
  sendRequest(method, params) {
    return server.ask(method, params);
  }
}

const load = Module._load;
Module._load = (name, ...rest) =>
  name === "vscode"
    ? vscode
    : name === "vscode-languageclient/node"
      ? { LanguageClient, TransportKind: { stdio: 0 } }
      : load(name, ...rest);
const extension = require("../out/alone.cjs");

const context = { subscriptions: [], asAbsolutePath: (name) => `/extension/${name}` };
const name = "lytInSym.dlg";
const uri = () => vscode.Uri.parse(server.uriOf(name));
const last = () => panels.at(-1).shown.at(-1);

before(async () => {
  server = await startServer();
  await server.open(name);
  await extension.activate(context);
});
after(async () => {
  await extension.deactivate();
  assert.equal(clients.at(-1).isRunning, false);
  context.subscriptions.forEach((each) => each.dispose());
  assert.equal(commands.size + changed.length, 0);
  await server.stop();
});

test("every command of the manifest is registered, and the client runs the chosen program", () => {
  const manifest = require("../package.json");
  assert.deepEqual([...commands.keys()].sort(), manifest.contributes.commands.map((each) => each.command).sort());
  assert.deepEqual(clients[0].serverOptions, { command: process.env.LYTDLG, args: ["lsp"], transport: 0 });
  assert.ok(clients[0].isRunning);
  const languages = manifest.contributes.languages.map((each) => each.id);
  const served = clients[0].clientOptions.documentSelector.flatMap((each) => each.language ?? []);
  assert.deepEqual(served.sort(), languages.sort());
});

test("the panel shows the dialog, and follows a change of its text", async () => {
  await commands.get("lytdlg.preview")(uri());
  assert.match(panels[0].webview.html, /id="picture"/);
  assert.match(last().played.svg, /^<svg/);
  const before = panels[0].shown.length;
  changed[0]({ document: { uri: { path: "/other.txt" } } });
  assert.equal(panels[0].shown.length, before);
  await server.change(name, "$VALUES", "$VALUE");
  changed[0]({ document: { uri: uri() } });
  while (panels[0].shown.length === before) await new Promise((resolve) => setTimeout(resolve, 10));
  assert.equal(last().played.outcome, "not opened");
  await server.change(name, "$VALUE", "$VALUES");
});

test("acts in the panel go to the server, and back again", async () => {
  const value = (control) => last().played.dialogs[0].controls.find((each) => each.target === control).value;
  await panels[0].take({ kind: "input", input: "S1:area(2,m2)" });
  assert.equal(value("Name"), "area");
  await panels[0].take({ kind: "act", act: 'set Name = "length"' });
  assert.equal(value("Name"), "length");
  assert.deepEqual(last().acts, ['set Name = "length"']);
  await panels[0].take({ kind: "back" });
  assert.equal(value("Name"), "area");
  await panels[0].take({ kind: "act", act: "press Nobody" });
  assert.match(last().played.failed.reason, /Nobody/);
  panels[0].dispose();
  await commands.get("lytdlg.preview")(server.uriOf(name));
  assert.equal(panels.length, 2);
  assert.deepEqual(last().acts, []);
});

test("run, test and why run the program on what was saved", async () => {
  const file = new URL(server.uriOf(name)).pathname;
  const ran = async (command, answer) => {
    answerOfUser = answer;
    await commands.get(command)(uri());
    return tasks.at(-1)?.execution.words;
  };
  assert.equal(await ran("lytdlg.run", undefined), undefined, "a box that is left runs nothing");
  assert.deepEqual(await ran("lytdlg.run", "S1:a; $(b)"), ["run", file, "--input", "S1:a; $(b)", "--ok"]);
  assert.deepEqual(await ran("lytdlg.test"), ["test", file.slice(0, file.lastIndexOf("/"))]);
  const range = {};
  activeTextEditor = {
    selection: { active: {} },
    document: { uri: uri(), getWordRangeAtPosition: () => range, getText: () => "Unit" },
  };
  assert.deepEqual(await ran("lytdlg.why", asProposed), ["why", file, "Unit"]);
  assert.equal(saved.length, tasks.length);
  assert.equal(tasks[0].execution.program, process.env.LYTDLG);
});

test("without a choice the program is the one inside", async () => {
  settings.program = "";
  const other = { ...context, subscriptions: [] };
  await extension.activate(other);
  assert.match(clients[1].serverOptions.command, /^\/extension\/bin.lytdlg/);
  other.subscriptions.forEach((each) => each.dispose());
});
