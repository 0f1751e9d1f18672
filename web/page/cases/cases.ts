// The cases of the dialog: all are carried out at each change, and what was just tried becomes one with a click.
import type { Bench } from "../bench";
import { ask, button, find, make, say } from "../dom";
import type { CaseResult, Range, WorkspaceEdit } from "../engine/contract";
import { pathOf, uriOf } from "../files/files";
import type { Panels } from "../panels";

export class CasesPanel {
  private readonly page = find("page-cases");
  private readonly tab = find("tab-cases");
  private readonly counts = make("span", { class: "hint", id: "case-count" });
  private readonly list = make("ul", { class: "cases" });
  private timer = 0;
  private newest = 0;

  constructor(private readonly bench: Bench, panels: Panels) {
    const add = button("New case from the acts", "The result of the input and the acts as a case", () => void this.add());
    add.className = "tool";
    add.id = "new-case";
    this.page.append(make("div", {}, add, " ", this.counts), this.list);
    bench.files.changed.on(() => this.later());
    bench.files.activated.on(() => this.later());
    panels.shown.on((name) => name === "cases" && void this.run());
  }

  private later(): void {
    window.clearTimeout(this.timer);
    this.timer = window.setTimeout(() => void this.run(), 250);
  }

  private async run(): Promise<void> {
    const own = ++this.newest;
    const { bench } = this;
    if (!bench.dialog) {
      return;
    }
    const answer = await bench.client
      .ask<{ cases: CaseResult[] }>("lytdlg/cases", { textDocument: { uri: uriOf(bench.dialog) } })
      .catch((failure: Error) => failure);
    if (own === this.newest) {
      this.page.dataset["dialog"] = bench.dialog;
      this.show(answer);
    }
  }

  private show(answer: { cases: CaseResult[] } | Error): void {
    if (answer instanceof Error) {
      this.list.replaceChildren(make("li", { class: "warning" }, answer.message));
      return;
    }
    const { cases } = answer;
    const failed = cases.filter((each) => !each.passed).length;
    this.tab.textContent = failed > 0 ? `Cases: ${failed} failed` : cases.length > 0 ? `Cases ✓ ${cases.length}` : "Cases";
    this.tab.classList.toggle("warning", failed > 0);
    this.counts.textContent = `${cases.length - failed} passed, ${failed} failed`;
    this.list.replaceChildren(...cases.map((each) => this.row(each)));
  }

  private row(each: CaseResult): HTMLElement {
    const play = make("button", { type: "button", class: "tool", title: "Open the dialog as this case leaves it" }, "Play");
    play.addEventListener("click", () => {
      if (this.bench.languages.includes(each.language)) {
        this.bench.language = each.language;
      }
      this.bench.begin(each.input, [...each.acts]);
    });
    const name = this.linked(each.name, each.uri, each.range);
    const differences = each.differences.map(({ range, expected, got }) =>
      make(
        "li",
        {},
        this.linked(`line ${range.start.line + 1}`, each.uri, range),
        make("div", {}, "expected: ", make("code", {}, expected || "nothing")),
        make("div", {}, "got: ", make("code", {}, got || "nothing")),
      ),
    );
    const state = make("span", { class: each.passed ? "holds" : "fails" }, each.passed ? "✓ passed" : "✗ failed");
    return make("li", {}, play, " ", state, " ", name, make("ul", {}, ...differences));
  }

  private linked(text: string, uri: string, range: Range): HTMLElement {
    const link = make("button", { type: "button", class: "link" }, text);
    link.addEventListener("click", () => {
      this.bench.files.show(pathOf(uri));
      this.bench.lit.send({ path: pathOf(uri), range });
    });
    return link;
  }

  private async add(): Promise<void> {
    const answer = await ask("New case", [{ name: "What it shows", value: "a new case" }]);
    const name = answer?.[0]?.trim();
    if (!name) {
      return;
    }
    try {
      const edit = await this.bench.client.ask<WorkspaceEdit>("lytdlg/newCase", { ...this.bench.trial, name });
      this.bench.files.apply(edit);
      say(`The case is in ${Object.keys(edit.changes).map(pathOf).join(", ")}.`);
    } catch (failure) {
      say((failure as Error).message, true);
    }
  }
}
