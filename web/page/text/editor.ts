// The editor: one view, which shows the state of the text that is active.
import { closeBrackets, closeBracketsKeymap, completionKeymap } from "@codemirror/autocomplete";
import { defaultKeymap, history, historyKeymap } from "@codemirror/commands";
import { lintGutter, lintKeymap } from "@codemirror/lint";
import { highlightSelectionMatches, openSearchPanel, search, searchKeymap } from "@codemirror/search";
import { EditorState, StateEffect, StateField, type Extension, type StateEffectType } from "@codemirror/state";
import { Decoration, drawSelection, EditorView, highlightActiveLine, highlightActiveLineGutter, keymap, lineNumbers, type DecorationSet } from "@codemirror/view";
import type { Bench } from "../bench";
import type { Stage } from "../dialog/stage";
import { find, say } from "../dom";
import { lineOf, type Range } from "../engine/contract";
import { positionOf, spanOf } from "../engine/places";
import { isDescription, isLanguageFile, uriOf } from "../files/files";
import { Findings } from "./findings";
import { highlighting, marksOf, names, namesEffect } from "./highlight";
import { Service } from "./service";

// Lines that light up because something else on the page speaks of them.
const setLit: StateEffectType<number[]> = StateEffect.define<number[]>();
const litLine = Decoration.line({ class: "lit" });
const lit = StateField.define<DecorationSet>({
  create: () => Decoration.none,
  update(shown, change) {
    for (const effect of change.effects) {
      if (effect.is(setLit)) {
        return Decoration.set(effect.value.map((from) => litLine.range(from)));
      }
    }
    return shown.map(change.changes);
  },
  provide: (field) => EditorView.decorations.from(field),
});

export class Editor {
  readonly view: EditorView;
  private readonly service: Service;
  private isSwitching = false;
  private marks: Decoration[] = [];
  private timer = 0;

  constructor(private readonly bench: Bench, private readonly stage: Stage) {
    this.service = new Service(bench);
    const { files } = bench;
    files.extensionsFor = (path) => this.extensions(path);
    files.showsChange = (change) => this.view.dispatch(change);
    this.view = new EditorView({ parent: find("editor") });
    files.activated.on((path) => this.show(path));
    new Findings(bench, this.view);
    bench.lit.on((place) => place && this.light(place.path, [place.range], true));
  }

  // The engine's names for the kinds of names.
  useKinds(kinds: string[]): void {
    this.marks = marksOf(kinds);
    this.colour();
  }

  private extensions(path: string): Extension {
    const kind = isDescription(path) ? "dlg" : isLanguageFile(path) ? "nls" : "other";
    const isServed = kind !== "other";
    return [
      lineNumbers(), highlightActiveLineGutter(), highlightActiveLine(), history(), drawSelection(), search({ top: true }),
      highlightSelectionMatches(), closeBrackets(), EditorState.tabSize.of(4), highlighting(kind), lit, names,
      EditorView.contentAttributes.of({ "aria-label": `Text of ${path}`, spellcheck: "false", tabindex: "0" }),
      isServed ? [lintGutter(), this.service.extension(path)] : [],
      keymap.of([...closeBracketsKeymap, ...defaultKeymap, ...searchKeymap, ...historyKeymap, ...completionKeymap, ...lintKeymap]),
      EditorView.updateListener.of((update) => {
        if (!this.isSwitching) {
          this.bench.files.take(update.state);
        }
        if (update.docChanged) {
          this.colour();
        }
        if (update.selectionSet && !update.docChanged) {
          this.findControl();
        }
      }),
      EditorView.domEventHandlers({
        mousedown: (event, view) => {
          const offset = view.posAtCoords({ x: event.clientX, y: event.clientY });
          if ((event.ctrlKey || event.metaKey) && isServed && offset !== null) {
            event.preventDefault();
            const place = { textDocument: { uri: uriOf(path) }, position: positionOf(view.state.doc, offset) };
            this.service.goTo(place).catch((failure: Error) => say(failure.message, true));
            return true;
          }
          return false;
        },
      }),
    ];
  }

  private show(path: string): void {
    const state = this.bench.files.get(path)?.state;
    if (state) {
      this.isSwitching = true;
      this.view.setState(state);
      this.isSwitching = false;
      this.colour();
    }
  }

  // The kinds of names, a moment after the last key.
  private colour(): void {
    window.clearTimeout(this.timer);
    this.timer = window.setTimeout(() => void this.colourNow(), 60);
  }

  private async colourNow(): Promise<void> {
    const path = this.bench.files.active;
    const { doc } = this.view.state;
    if (!isDescription(path)) {
      return;
    }
    const { data } = await this.bench.client
      .ask<{ data: number[] }>("textDocument/semanticTokens/full", { textDocument: { uri: uriOf(path) } })
      .catch(() => ({ data: [] }));
    if (doc === this.view.state.doc && path === this.bench.files.active) {
      this.view.dispatch({ effects: namesEffect(doc, this.marks, data) });
    }
  }

  // The first of the ranges comes into view.
  light(path: string, ranges: Range[], scrolls = false): void {
    if (path !== this.bench.files.active) {
      return;
    }
    const { doc } = this.view.state;
    const from = [...new Set(ranges.map((range) => doc.lineAt(spanOf(doc, range).from).from))];
    const first = from[0];
    const effects: StateEffect<unknown>[] = [setLit.of(from.sort((one, two) => one - two))];
    if (scrolls && first !== undefined) {
      effects.push(EditorView.scrollIntoView(first, { y: "center" }));
    }
    this.view.dispatch({ effects });
  }

  // The control that the line of the cursor is about: of its statement, else the first name in the line.
  private findControl(): void {
    const { bench } = this;
    if (bench.files.active !== bench.topPath) {
      return;
    }
    const { doc, selection } = this.view.state;
    const { line } = positionOf(doc, selection.main.head);
    const text = doc.line(line + 1).text;
    const words = text.match(/\w+/g) ?? [];
    const controls = bench.top?.controls ?? [];
    const found = controls.find((control) => lineOf(control) === line) ?? controls.find((control) => words[0] === control.target);
    this.stage.mark(found ? [found.target] : []);
    if (found) {
      this.stage.elementOf(found.target)?.scrollIntoView({ block: "nearest", inline: "nearest" });
    }
  }

  format(): void {
    this.service.format(this.bench.files.active).catch((failure: Error) => say(failure.message, true));
  }

  search(): void {
    openSearchPanel(this.view);
  }
}
