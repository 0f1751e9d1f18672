// What is wrong with a text, under its lines and in a list, with the cure as a click.
import { forEachDiagnostic, setDiagnostics, type Diagnostic } from "@codemirror/lint";
import type { Text } from "@codemirror/state";
import type { EditorView } from "@codemirror/view";
import type { Bench } from "../bench";
import { find, make } from "../dom";
import type { Finding, Mending } from "../engine/contract";
import { positionOf, spanOf } from "../engine/places";
import { hasByte } from "../files/codepage";
import { pathOf, uriOf } from "../files/files";

const severities: Record<number, Diagnostic["severity"]> = { 1: "error", 2: "warning", 3: "info" };

// Characters that would be lost on the way to the disk.
function lostCharacters(doc: Text): Diagnostic[] {
  const found: Diagnostic[] = [];
  let place = 0;
  for (const character of doc.toString()) {
    if (!hasByte(character)) {
      const message = `"${character}" is not in code page 1252; it is saved as a question mark`;
      found.push({ from: place, to: place + character.length, severity: "error", source: "code page", message });
    }
    place += character.length;
  }
  return found;
}

function areSame(one: Finding, other: Finding): boolean {
  return one.code === other.code && JSON.stringify(one.range) === JSON.stringify(other.range);
}

export class Findings {
  private newest = 0;

  constructor(private readonly bench: Bench, private readonly view: EditorView) {
    bench.client.on<{ uri: string; diagnostics: Finding[] }>("textDocument/publishDiagnostics", ({ uri, diagnostics }) => {
      if (pathOf(uri) === bench.files.active) {
        void this.show(diagnostics);
      }
    });
    bench.files.activated.on(() => this.list());
  }

  // The findings come first; their cures follow.
  private async show(findings: Finding[]): Promise<void> {
    const own = ++this.newest;
    const uri = uriOf(this.bench.files.active);
    this.put(findings, []);
    if (findings.length === 0) {
      return;
    }
    const end = { line: this.view.state.doc.lines, character: 0 };
    const params = { textDocument: { uri }, range: { start: { line: 0, character: 0 }, end }, context: { diagnostics: findings } };
    const mendings = await this.bench.client.ask<Mending[]>("textDocument/codeAction", params).catch(() => []);
    if (own === this.newest) {
      this.put(findings, mendings);
    }
  }

  private put(findings: Finding[], mendings: Mending[]): void {
    const { doc } = this.view.state;
    const shown = findings.map((finding): Diagnostic => {
      const { from, to } = spanOf(doc, finding.range);
      const cures = mendings.filter((mending) => mending.diagnostics?.some((each) => areSame(each, finding)));
      return {
        from,
        to: Math.max(to, Math.min(from + 1, doc.lineAt(from).to)),
        severity: severities[finding.severity] ?? "info",
        source: finding.code,
        message: finding.message,
        actions: cures.map(({ title, edit }) => ({ name: title, apply: () => this.bench.files.apply(edit) })),
      };
    });
    this.view.dispatch(setDiagnostics(this.view.state, [...shown, ...lostCharacters(doc)]));
    this.list();
  }

  // Also for those who do not see lines under a text.
  private list(): void {
    const rows: HTMLElement[] = [];
    forEachDiagnostic(this.view.state, (finding, from) => {
      const { line } = positionOf(this.view.state.doc, from);
      const go = make("button", { type: "button", class: "link" }, `${line + 1}: ${finding.message}`);
      go.addEventListener("click", () => {
        this.view.dispatch({ selection: { anchor: from }, scrollIntoView: true });
        this.view.focus();
      });
      const row = make("li", { class: finding.severity }, go);
      for (const cure of finding.actions ?? []) {
        const mend = make("button", { type: "button", class: "cure" }, cure.name);
        mend.addEventListener("click", () => cure.apply(this.view, from, finding.to));
        row.append(" ", mend);
      }
      rows.push(row);
    });
    find("findings").replaceChildren(...rows);
    find("finding-count").textContent = rows.length === 0 ? "no findings" : rows.length === 1 ? "1 finding" : `${rows.length} findings`;
    find("finding-box").classList.toggle("any", rows.length > 0);
    find<HTMLDetailsElement>("finding-box").open = rows.length > 0;
  }
}
