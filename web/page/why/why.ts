// Why a control is as it is: its rules, which of them hold, and what would have to change. Their lines light up in the text.
import type { Bench } from "../bench";
import type { Stage } from "../dialog/stage";
import { find, make } from "../dom";
import type { Range, Why } from "../engine/contract";
import type { Panels } from "../panels";
import type { Editor } from "../text/editor";

export class WhyPanel {
  private readonly page = find("page-why");
  private readonly list = make("select", { class: "tool", "aria-label": "Control" });
  private readonly answer = make("div");
  private newest = 0;

  constructor(
    private readonly bench: Bench,
    private readonly panels: Panels,
    private readonly editor: Editor,
    private readonly stage: Stage,
  ) {
    this.page.append(make("div", {}, "Why is ", this.list, " so?"), this.answer);
    this.list.addEventListener("change", () => {
      bench.chosen = this.list.value || undefined;
      void this.tell();
    });
    bench.asked.on(() => {
      bench.files.show(bench.topPath);
      panels.show("why");
    });
    panels.shown.on((name) => (name === "why" ? void this.tell() : stage.mark([])));
    bench.drawn.on(({ isNewest }) => isNewest && panels.current === "why" && void this.tell());
  }

  private async tell(): Promise<void> {
    const { bench } = this;
    const turn = ++this.newest;
    const target = bench.chosen;
    this.offer(target);
    if (target === undefined || !bench.find(target)) {
      this.answer.replaceChildren(make("p", { class: "hint" }, "Alt+click on a control, or F1 in it, explains its state."));
      return;
    }
    const why = await bench.client.ask<Why>("lytdlg/why", { ...bench.trial, target }).catch((failure: Error) => failure);
    if (turn !== this.newest || this.panels.current !== "why") {
      return;
    }
    this.stage.mark([target]);
    if (why instanceof Error) {
      this.answer.replaceChildren(make("p", { class: "warning" }, why.message));
      return;
    }
    const sentences = why.sentences.map(({ text, range }) => make("li", {}, this.linked(text, range)));
    const rules = why.rules.map((rule) => {
      const conditions = rule.conditions.map(({ text, holds }) =>
        make("li", { class: holds ? "holds" : "fails" }, `${holds ? "✓" : "✗"} ${text}`, holds ? "" : make("em", {}, " would have to change")),
      );
      const head = this.linked(`${rule.word}, line ${rule.range.start.line + 1}: ${rule.holds ? "holds" : "does not hold"}`, rule.range);
      const label = rule.decides ? make("span", { class: "decides" }, "decides") : "";
      return make("li", {}, head, " ", label, make("ul", {}, ...conditions));
    });
    this.answer.replaceChildren(make("ul", { class: "sentences" }, ...sentences), make("ul", { class: "rules" }, ...rules));
    const told = [...why.rules.filter((rule) => rule.decides), ...why.rules, ...why.sentences].map(({ range }) => range);
    const own = bench.find(target)?.range ?? null;
    this.editor.light(bench.topPath, [...told, own].filter((range) => range !== null), true);
  }

  // For those who do not click: any control of the dialog, hidden ones too.
  private offer(target: string | undefined): void {
    const controls = this.bench.top?.controls ?? [];
    const options = controls.map(({ target: name, type }) => new Option(`${name} (${type})`, name, false, name === target));
    this.list.replaceChildren(new Option("choose a control", ""), ...options);
  }

  private linked(text: string, range: Range | null): Node | string {
    if (!range) {
      return text;
    }
    const link = make("button", { type: "button", class: "link" }, text);
    link.addEventListener("click", () => {
      const path = this.bench.topPath;
      this.bench.files.show(path);
      this.bench.lit.send({ path, range });
    });
    return link;
  }
}

