// The language service in the editor: completion, explanations, the way to a name, renaming and formatting.
import { autocompletion, snippetCompletion, type Completion, type CompletionContext, type CompletionResult } from "@codemirror/autocomplete";
import type { Extension } from "@codemirror/state";
import { hoverTooltip, keymap, type Command, type EditorView, type Tooltip } from "@codemirror/view";
import type { Bench } from "../bench";
import { ask, say } from "../dom";
import type { Location, Proposal, TextEdit, WorkspaceEdit } from "../engine/contract";
import { offsetOf, positionOf, spanOf } from "../engine/places";
import { pathOf, uriOf } from "../files/files";
import { explained } from "./markdown";

// Of the protocol's kinds of proposals.
const kindNames: Record<number, string> = { 14: "keyword", 6: "variable", 12: "constant", 1: "text", 18: "property", 17: "class", 15: "function" };

export class Service {
  constructor(private readonly bench: Bench) {}

  extension(path: string): Extension {
    const at = (view: EditorView, offset: number) => ({
      textDocument: { uri: uriOf(path) },
      position: positionOf(view.state.doc, offset),
    });
    const atHead = (view: EditorView) => at(view, view.state.selection.main.head);
    const command = (work: (view: EditorView) => Promise<void>): Command => {
      return (view) => {
        void work(view).catch((failure: Error) => say(failure.message, true));
        return true;
      };
    };
    return [
      autocompletion({ icons: false, override: [(context) => this.complete(path, context)] }),
      hoverTooltip((view, offset) => this.explain(at(view, offset), view)),
      keymap.of([
        { key: "F12", run: command((view) => this.goTo(atHead(view))) },
        { key: "F2", run: command((view) => this.rename(atHead(view))) },
        { key: "Shift-Alt-f", run: command(() => this.format(path)) },
      ]),
    ];
  }

  private async complete(path: string, context: CompletionContext): Promise<CompletionResult | null> {
    const { doc } = context.state;
    const position = positionOf(doc, context.pos);
    const before = doc.lineAt(context.pos).text.slice(0, position.character);
    if (!context.explicit && !/[\w$/=:(,."]$/.test(before)) {
      return null;
    }
    const proposals = await this.bench.client.ask<Proposal[]>("textDocument/completion", { textDocument: { uri: uriOf(path) }, position });
    const first = proposals[0];
    if (!first || context.aborted) {
      return null;
    }
    const options = proposals.map(({ label, detail, kind, textEdit, insertTextFormat }): Completion => {
      const shown = { label, ...(detail === undefined ? {} : { detail }), type: kindNames[kind] ?? "text" };
      return insertTextFormat === 2
        ? snippetCompletion(textEdit.newText.replaceAll("$0", "${}"), shown)
        : { ...shown, apply: textEdit.newText };
    });
    return { from: offsetOf(doc, first.textEdit.range.start), options, validFor: /^[\w$.]*$/ };
  }

  private async explain(place: object, view: EditorView): Promise<Tooltip | null> {
    const { doc } = view.state;
    const found = await this.bench.client.ask<{ contents: { value: string }; range?: TextEdit["range"] } | null>("textDocument/hover", place);
    const text = found?.contents?.value;
    if (!text) {
      return null;
    }
    const { position } = place as { position: { line: number; character: number } };
    const span = found.range ? spanOf(doc, found.range) : { from: offsetOf(doc, position), to: offsetOf(doc, position) };
    return { pos: span.from, end: span.to, above: true, create: () => ({ dom: explained(text) }) };
  }

  async goTo(place: object): Promise<void> {
    const [found] = await this.bench.client.ask<Location[]>("textDocument/definition", place);
    if (!found) {
      throw new Error("there is no name here that leads anywhere");
    }
    const path = pathOf(found.uri);
    this.bench.files.show(path);
    this.bench.lit.send({ path, range: found.range });
  }

  private async rename(place: object): Promise<void> {
    const { client, files } = this.bench;
    const prepared = await client.ask<{ placeholder: string }>("textDocument/prepareRename", place);
    const answer = await ask(`Rename ${prepared.placeholder}`, [{ name: "New name", value: prepared.placeholder }]);
    const newName = answer?.[0];
    if (newName) {
      const edit = await client.ask<WorkspaceEdit>("textDocument/rename", { ...place, newName });
      files.apply(edit);
      const count = Object.values(edit.changes).reduce((sum, edits) => sum + edits.length, 0);
      say(`Renamed in ${count} places of ${Object.keys(edit.changes).length} files.`);
    }
  }

  async format(path: string): Promise<void> {
    const options = { tabSize: 4, insertSpaces: true };
    const edits = await this.bench.client.ask<TextEdit[] | null>("textDocument/formatting", { textDocument: { uri: uriOf(path) }, options });
    this.bench.files.edit(path, edits ?? []);
    say(edits?.length ? "Formatted." : "The text is formatted already.");
  }
}
