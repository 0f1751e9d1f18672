// The way of the text in and of the result out: the pieces of both have a colour for each control that got or gave them, and
// the scan can be gone through piece by piece.
import type { Bench } from "../bench";
import type { Stage } from "../dialog/stage";
import { find, make } from "../dom";
import type { Range, ScanStep, Way } from "../engine/contract";
import type { Panels } from "../panels";
import type { Editor } from "../text/editor";

const colours = 8;

export class WayPanel {
  private readonly page = find("page-way");
  private readonly strip = find("pieces");
  private readonly result = find("result");
  private way: Way | undefined;
  // How many steps of the scan are shown as done; nothing: all, without one that is looked at.
  private step: number | undefined;
  private newest = 0;

  constructor(
    private readonly bench: Bench,
    private readonly panels: Panels,
    private readonly editor: Editor,
    private readonly stage: Stage,
  ) {
    bench.drawn.on(({ isNewest }) => isNewest && void this.ask());
    bench.turned.on(() => (this.step = undefined));
    panels.shown.on((name) => (name === "way" ? this.show() : this.stage.mark([])));
  }

  private async ask(): Promise<void> {
    const own = ++this.newest;
    const way = await this.bench.client.ask<Way>("lytdlg/way", this.bench.trial).catch(() => undefined);
    if (own === this.newest) {
      this.way = way;
      this.show();
    }
  }

  private colourOf(target: string | null | undefined): string {
    const controls = this.bench.play?.dialogs[0]?.controls ?? [];
    const withValue = controls.filter((control) => control.value !== null || control.items.length > 0 || control.type === "TextBox");
    const index = withValue.findIndex((control) => control.target === target);
    return target && index >= 0 ? `piece colour-${index % colours}` : "piece plain";
  }

  private show(): void {
    const { way } = this;
    if (!way) {
      this.page.replaceChildren(make("p", { class: "hint" }, "The library refuses the text, so there is nothing to show."));
      this.strip.replaceChildren();
      this.result.replaceChildren();
      return;
    }
    this.showInput(way);
    this.showResult(way);
    this.showSteps(way);
  }

  private showInput(way: Way): void {
    const pieces = way.steps.flatMap((step, index) => {
      const isCurrent = this.step === index;
      const isDone = this.step === undefined || index <= this.step;
      // A piece may go into several; the result shows one of them.
      const shown = step.fills.find((fill) => way.pieces.some((piece) => piece.target === fill.target));
      const target = (shown ?? step.fills[0])?.target;
      const title = `${step.statement}: ${step.fills.map((fill) => fill.target).join(", ") || "no control"}`;
      const state = `${isDone ? "" : " later"}${isCurrent ? " current" : ""}`;
      const piece = make("button", { type: "button", class: this.colourOf(target) + state, title }, way.input.slice(step.begin, step.end));
      piece.addEventListener("click", () => this.goTo(index));
      const cut = make("span", { class: `cut${state}`, title: `separator of ${step.statement}` }, way.input.slice(step.end, step.next));
      return [...(step.end > step.begin ? [piece] : []), ...(step.next > step.end ? [cut] : [])];
    });
    const rest = way.rest && way.rest.end > way.rest.begin ? [make("span", { class: "piece left-over", title: "left over" }, way.input.slice(way.rest.begin, way.rest.end))] : [];
    this.strip.replaceChildren(...pieces, ...rest);
  }

  private showResult(way: Way): void {
    const text = way.result;
    if (text === null) {
      this.result.replaceChildren(make("em", { class: "hint" }, "no rule holds"));
      return;
    }
    const parts: HTMLElement[] = [];
    let done = 0;
    for (const { begin, end, target, range } of way.pieces) {
      parts.push(make("span", { class: "fixed" }, text.slice(done, begin)));
      const piece = make("button", { type: "button", class: this.colourOf(target), title: target ?? "a text of the rule" }, text.slice(begin, end));
      piece.addEventListener("click", () => {
        this.light(range);
        this.stage.mark(target ? [target] : []);
      });
      parts.push(...(end > begin ? [piece] : []));
      done = end;
    }
    parts.push(make("span", { class: "fixed" }, text.slice(done)));
    this.result.replaceChildren(...parts.filter((part) => part.textContent !== ""));
  }

  private showSteps(way: Way): void {
    const hadFocus = (document.activeElement as HTMLElement | null)?.id;
    const count = way.steps.length;
    const turn = (id: string, text: string, title: string, to: number | undefined) => {
      const made = make("button", { type: "button", class: "tool", id, title, disabled: to !== undefined && (to < 0 || to >= count) }, text);
      made.addEventListener("click", () => this.goTo(to));
      return made;
    };
    const at = this.step ?? -1;
    const tools = make(
      "div",
      { class: "row" },
      turn("way-back", "◀ Back", "The step before", at - 1),
      turn("way-forth", "Forward ▶", "The next step", at + 1),
      turn("way-all", "All", "All steps", undefined),
      make("span", { class: "hint" }, this.step === undefined ? `${count} steps` : `step ${at + 1} of ${count}`),
    );
    const rows = way.steps.map((step, index) => {
      const row = make("button", { type: "button", class: "link", "aria-current": index === this.step ? "step" : undefined }, this.wordsOf(way, step));
      row.addEventListener("click", () => this.goTo(index));
      return make("li", { class: index === this.step ? "current" : "" }, row);
    });
    const rest = way.rest ? [make("p", { class: "warning" }, `Left over: "${way.input.slice(way.rest.begin, way.rest.end)}"`)] : [];
    const refusals = way.refusals.map(({ range, text }) => make("li", {}, this.linked(`line ${range.start.line + 1}: ${text}`, range)));
    const rule = way.rule ? [make("li", {}, this.linked(`line ${way.rule.start.line + 1} gives the result`, way.rule))] : [];
    this.page.replaceChildren(tools, make("ol", {}, ...rows), ...rest, make("p", { class: "hint" }, "Output"), make("ul", {}, ...refusals, ...rule));
    if (hadFocus) {
      document.getElementById(hadFocus)?.focus();
    }
  }

  private wordsOf(way: Way, step: ScanStep): string {
    const piece = way.input.slice(step.begin, step.end);
    const cut = way.input.slice(step.end, step.next);
    const fills = step.fills.map(({ target, text }) => `${target} ${text}`).join("; ");
    const end = cut === "" ? "" : ` up to "${cut}"`;
    return `${step.statement}: "${piece}"${end}${fills ? `: ${fills}` : ""} → ${step.follower || "the end"}`;
  }

  private goTo(index: number | undefined): void {
    this.step = index;
    if (this.panels.current !== "way") {
      this.panels.show("way");
    } else {
      this.show();
    }
    const step = index === undefined ? undefined : this.way?.steps[index];
    this.stage.mark(step?.fills.map((fill) => fill.target) ?? []);
    if (step) {
      this.light(step.range);
    }
  }

  private light(range: Range): void {
    this.bench.files.show(this.bench.dialog);
    this.editor.light(this.bench.dialog, [range], true);
  }

  private linked(text: string, range: Range): HTMLElement {
    const link = make("button", { type: "button", class: "link" }, text);
    link.addEventListener("click", () => this.light(range));
    return link;
  }
}
