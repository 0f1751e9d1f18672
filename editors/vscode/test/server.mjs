// A language server over a copy of the samples, and the connection to it that the editor's own client uses.
import { spawn } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import * as protocol from "vscode-languageserver-protocol/node.js";

const samples = fileURLToPath(new URL("../../../samples/dialogs", import.meta.url));

export async function startServer() {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), "lytdlg-"));
  fs.cpSync(samples, folder, { recursive: true });
  const program = spawn(process.env.LYTDLG, ["lsp"], { stdio: ["pipe", "pipe", "inherit"] });
  const reader = new protocol.StreamMessageReader(program.stdout);
  const connection = protocol.createProtocolConnection(reader, new protocol.StreamMessageWriter(program.stdin));

  const waiting = new Map();
  connection.onNotification("textDocument/publishDiagnostics", (told) => waiting.get(told.uri)?.(told));
  connection.onRequest("client/registerCapability", () => null);
  connection.onRequest("window/workDoneProgress/create", () => null);
  connection.listen();

  const uriOf = (name) => pathToFileURL(path.join(folder, name)).href;
  const answer = await connection.sendRequest("initialize", {
    processId: process.pid,
    rootUri: pathToFileURL(folder).href,
    workspaceFolders: [{ uri: pathToFileURL(folder).href, name: "dialogs" }],
    capabilities: {
      workspace: { workspaceEdit: { documentChanges: true, resourceOperations: ["create", "rename", "delete"] } },
      textDocument: {
        codeAction: { codeActionLiteralSupport: { codeActionKind: { valueSet: ["quickfix"] } } },
        completion: { completionItem: { snippetSupport: true } },
        documentSymbol: { hierarchicalDocumentSymbolSupport: true },
      },
    },
  });
  await connection.sendNotification("initialized", {});

  const texts = new Map();
  const server = {
    connection,
    capabilities: answer.capabilities,
    uriOf,
    text: (name) => texts.get(name).text,
    // What is found in a text that satisfies the condition: a later look may find more.
    findings: (name, isWanted) =>
      new Promise((resolve) => waiting.set(uriOf(name), (told) => isWanted(told.diagnostics) && resolve(told.diagnostics))),
    open(name) {
      const text = fs.readFileSync(path.join(folder, name), "latin1");
      texts.set(name, { text, version: 1 });
      const item = { uri: uriOf(name), languageId: "lytdlg", version: 1, text };
      return connection.sendNotification("textDocument/didOpen", { textDocument: item });
    },
    change(name, from, to) {
      const known = texts.get(name);
      texts.set(name, { text: known.text.replace(from, to), version: known.version + 1 });
      return connection.sendNotification("textDocument/didChange", {
        textDocument: { uri: uriOf(name), version: known.version + 1 },
        contentChanges: [{ text: server.text(name) }],
      });
    },
    // The place of the first letter of a word, in the first line that begins so.
    at(name, start, word) {
      const lines = server.text(name).split(/\r?\n/);
      const line = lines.findIndex((each) => each.trim().startsWith(start) && each.includes(word));
      return { textDocument: { uri: uriOf(name) }, position: { line, character: lines[line].indexOf(word) } };
    },
    ask: (method, params) => connection.sendRequest(method, params),
    async stop() {
      await connection.sendRequest("shutdown");
      const ended = new Promise((resolve) => program.on("exit", resolve));
      await connection.sendNotification("exit");
      const code = await ended;
      connection.dispose();
      fs.rmSync(folder, { recursive: true });
      return code;
    },
  };
  return server;
}
