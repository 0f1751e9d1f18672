// The design of the dialog on top: controls are moved, sized, ordered, added and removed with the pointer or the keys. The
// engine changes the numbers in the text; each change is one step of the editor's undo.
import { redo, undo } from "@codemirror/commands";
import type { Bench } from "../bench";
import type { Stage } from "../dialog/stage";
import { ask, button, find, make, say } from "../dom";
import { lineOf, type Area, type Control, type DialogWindow, type WorkspaceEdit } from "../engine/contract";
import { uriOf } from "../files/files";
import type { Editor } from "../text/editor";
import { arrangements, grid, moved, sized, type Guide } from "./geometry";
import { reordered } from "./order";

// What a new control is large at first, at 96 dots per inch.
const palette: Record<string, { width: number; height: number }> = {
  Text: { width: 75, height: 13 },
  TextBox: { width: 150, height: 20 },
  ComboBox: { width: 150, height: 100 },
  DropListBox: { width: 150, height: 100 },
  ListBox: { width: 150, height: 84 },
  CheckListBox: { width: 150, height: 84 },
  CheckBox: { width: 90, height: 13 },
  OptionButton: { width: 90, height: 13 },
  GroupBox: { width: 200, height: 90 },
  PushButton: { width: 84, height: 23 },
};
const withoutCaption = ["TextBox", "ComboBox", "DropListBox", "ListBox", "CheckListBox"];

interface Drag {
  kind: "move" | "size";
  x: number;
  y: number;
  areas: Map<string, Area>;
  hasMoved: boolean;
}

export class Design {
  private readonly bar = find("design-bar");
  private readonly overlay = make("div", { class: "overlay" });
  private isOn = false;
  private showsOrder = false;
  // By target, in the order in which they were chosen.
  private selected: string[] = [];
  private armed: string | undefined;
  private drag: Drag | undefined;

  constructor(private readonly bench: Bench, private readonly editor: Editor, private readonly stage: Stage) {
    find("design").addEventListener("click", () => this.turn(!this.isOn));
    bench.drawn.on(({ isNewest }) => isNewest && this.isOn && this.show());
    bench.failed.on(() => this.overlay.remove());
    this.overlay.addEventListener("pointerdown", (event) => this.begin(event));
    // The focus is where the handler puts it.
    this.overlay.addEventListener("mousedown", (event) => event.preventDefault());
    this.overlay.addEventListener("pointermove", (event) => this.move(event));
    this.overlay.addEventListener("pointerup", (event) => void this.end(event));
    this.overlay.addEventListener("keydown", (event) => this.key(event));
    this.makeBar();
  }

  private get window(): DialogWindow | undefined {
    const top = this.bench.top;
    return top?.kind === "dialog" ? top : undefined;
  }

  private get controls(): Control[] {
    return this.window?.controls.filter((control) => control.place && control.range) ?? [];
  }

  private makeBar(): void {
    const order = button("Tab order", "Drag a number onto another, or move it with the arrow keys", () => {
      this.showsOrder = !this.showsOrder;
      order.setAttribute("aria-pressed", String(this.showsOrder));
      this.show();
    });
    order.setAttribute("aria-pressed", "false");
    const list = make("select", { "aria-label": "New control" }, new Option("New control", ""), ...Object.keys(palette).map((type) => new Option(type, type)));
    list.addEventListener("change", () => {
      this.armed = list.value || undefined;
      say(this.armed ? `Click in the dialog where the ${this.armed} begins, or press Enter for its corner.` : "");
    });
    list.addEventListener("keydown", (event) => {
      if (event.key === "Enter" && this.armed) {
        // Else the key would confirm the box that opens.
        event.preventDefault();
        void this.add(2 * grid, 2 * grid);
      }
    });
    const remove = button("Remove", "Remove what is chosen (Delete)", () => void this.remove());
    this.bar.append(list, remove, order, ...this.arrangeTools());
  }

  // Those whose names begin alike are after one word.
  private arrangeTools(): HTMLElement[] {
    let last = "";
    return Object.keys(arrangements).flatMap((name) => {
      const [kind = "", way = ""] = name.split(" ");
      const tool = button(way, name, () => void this.arrange(name));
      tool.setAttribute("aria-label", name);
      const head = kind === last ? [] : [make("span", {}, kind)];
      last = kind;
      return [...head, tool];
    });
  }

  private turn(isOn: boolean): void {
    this.isOn = this.stage.isAsleep = isOn;
    find("design").setAttribute("aria-pressed", String(isOn));
    this.bar.hidden = !isOn;
    this.selected = [];
    this.stage.element.classList.toggle("designing", isOn);
    if (isOn) {
      this.show();
    } else {
      this.overlay.remove();
    }
  }

  private show(): void {
    const { window } = this;
    const top = this.stage.topElement;
    if (!window || !top) {
      this.overlay.remove();
      return;
    }
    const focused = (document.activeElement as HTMLElement | null)?.dataset["box"];
    this.selected = this.selected.filter((target) => this.bench.find(target));
    // Frames come first, so that what is inside them is above.
    const order = [...this.controls].sort((one, two) => Number(two.type === "GroupBox") - Number(one.type === "GroupBox"));
    this.overlay.replaceChildren(...order.map((control) => this.box(control)));
    if (this.overlay.parentElement !== top) {
      top.append(this.overlay);
    }
    if (focused !== undefined) {
      this.boxOf(focused)?.focus({ preventScroll: true });
    }
  }

  private boxOf(target: string): HTMLElement | undefined {
    return ([...this.overlay.children] as HTMLElement[]).find((box) => box.dataset["box"] === target);
  }

  private box(control: Control): HTMLElement {
    const { x, y, width, height } = control.place!;
    const isSelected = this.selected.includes(control.target);
    const words = `${control.target}, ${control.type}, at ${x}, ${y}, ${width} by ${height}`;
    const box = make("button", { type: "button", class: "box", "data-box": control.target, "aria-label": words, "aria-pressed": String(isSelected), title: words });
    Object.assign(box.style, { left: `${x}px`, top: `${y}px`, width: `${width}px`, height: `${height}px` });
    box.classList.toggle("group", control.type === "GroupBox");
    if (isSelected && !this.showsOrder) {
      box.append(make("span", { class: "handle" }));
    }
    if (this.showsOrder && control.type !== "GroupBox" && control.type !== "Text") {
      box.append(make("span", { class: "number" }, String(this.stops.indexOf(control) + 1)));
    }
    return box;
  }

  private get stops(): Control[] {
    return this.controls.filter((control) => control.type !== "GroupBox" && control.type !== "Text");
  }

  private pick(target: string, adds: boolean): void {
    if (!adds) {
      this.selected = this.selected.includes(target) ? this.selected : [target];
    } else if (this.selected.includes(target)) {
      this.selected = this.selected.filter((each) => each !== target);
    } else {
      this.selected.push(target);
    }
    const range = this.bench.find(target)?.range;
    if (range) {
      this.bench.files.show(this.bench.topPath);
      this.editor.light(this.bench.topPath, [range], true);
    }
    this.show();
  }

  private begin(event: PointerEvent): void {
    const { window } = this;
    if (!window || event.button !== 0) {
      return;
    }
    if (this.armed) {
      const corner = this.overlay.getBoundingClientRect();
      void this.add(event.clientX - corner.left - window.client.x, event.clientY - corner.top - window.client.y);
      return;
    }
    const element = event.target as HTMLElement;
    const target = element.closest<HTMLElement>("[data-box]")?.dataset["box"];
    if (target === undefined) {
      this.selected = [];
      this.show();
      return;
    }
    const kind = element.classList.contains("handle") ? "size" : "move";
    this.pick(target, event.shiftKey || event.ctrlKey);
    this.boxOf(target)?.focus({ preventScroll: true });
    this.overlay.setPointerCapture(event.pointerId);
    const chosen = this.showsOrder ? [target] : this.selected;
    const areas = new Map(chosen.flatMap((each) => {
      const place = this.bench.find(each)?.place;
      return place ? [[each, place]] : [];
    }));
    this.drag = { kind, x: event.clientX, y: event.clientY, areas, hasMoved: false };
  }

  private get neighbours(): Area[] {
    return this.controls.filter((control) => !this.selected.includes(control.target)).map((control) => control.place!);
  }

  private move(event: PointerEvent): void {
    const { drag } = this;
    const target = this.selected.at(-1);
    const first = drag && target !== undefined ? drag.areas.get(target) : undefined;
    if (!drag || !first) {
      return;
    }
    const dx = event.clientX - drag.x;
    const dy = event.clientY - drag.y;
    if (!drag.hasMoved && Math.abs(dx) + Math.abs(dy) < 3) {
      return;
    }
    drag.hasMoved = true;
    if (this.showsOrder) {
      return;
    }
    const { area, guides } = (drag.kind === "move" ? moved : sized)(first, dx, dy, this.neighbours);
    for (const [each, before] of drag.areas) {
      const after =
        drag.kind === "move"
          ? { ...before, x: before.x + area.x - first.x, y: before.y + area.y - first.y }
          : { ...before, width: before.width + area.width - first.width, height: before.height + area.height - first.height };
      this.draw(each, after);
    }
    this.drawGuides(guides);
  }

  private draw(target: string, area: Area): void {
    for (const element of [this.boxOf(target), this.stage.elementOf(target)]) {
      if (element) {
        Object.assign(element.style, { left: `${area.x}px`, top: `${area.y}px`, width: `${area.width}px`, height: `${area.height}px` });
      }
    }
  }

  private drawGuides(guides: Guide[]): void {
    this.overlay.querySelectorAll(".guide").forEach((guide) => guide.remove());
    for (const { isUpright, at } of guides) {
      const guide = make("div", { class: `guide ${isUpright ? "upright" : "level"}` });
      guide.style[isUpright ? "left" : "top"] = `${at}px`;
      this.overlay.append(guide);
    }
  }

  private async end(event: PointerEvent): Promise<void> {
    const { drag } = this;
    this.drag = undefined;
    this.drawGuides([]);
    if (!drag?.hasMoved) {
      return;
    }
    if (this.showsOrder) {
      await this.reorder([...drag.areas.keys()][0]!, this.stopAt(event));
      return;
    }
    const areas = new Map([...drag.areas.keys()].map((target) => [target, this.areaOf(this.boxOf(target)!)]));
    await this.place(areas);
  }

  private stopAt(event: PointerEvent): string | undefined {
    const under = document.elementsFromPoint(event.clientX, event.clientY) as HTMLElement[];
    return under.map((element) => element.dataset["box"]).find((target) => this.stops.some((stop) => stop.target === target));
  }

  private async reorder(from: string, to: string | undefined): Promise<void> {
    const lines = to === undefined ? undefined : reordered(this.controls, from, to);
    if (lines) {
      await this.change("lytdlg/order", { lines });
    }
  }

  private areaOf(box: HTMLElement): Area {
    const number = (text: string) => Math.round(parseFloat(text));
    const { left, top, width, height } = box.style;
    return { x: number(left), y: number(top), width: number(width), height: number(height) };
  }

  private async place(areas: Map<string, Area>): Promise<void> {
    const { window } = this;
    if (!window) {
      return;
    }
    const places = [...areas].map(([target, area]) => ({
      line: lineOf(this.bench.find(target)),
      x: area.x - window.client.x,
      y: area.y - window.client.y,
      width: area.width,
      height: area.height,
    }));
    await this.change("lytdlg/place", { dpi: this.bench.dpi, places });
  }

  private async change(method: string, params: object, adapt?: (edit: WorkspaceEdit) => void): Promise<void> {
    try {
      const edit = await this.bench.client.ask<WorkspaceEdit>(method, { textDocument: { uri: uriOf(this.bench.topPath) }, ...params });
      adapt?.(edit);
      this.bench.files.apply(edit);
    } catch (failure) {
      say((failure as Error).message, true);
      this.stage.redraw();
    }
  }

  private async arrange(name: string): Promise<void> {
    const targets = this.selected.filter((target) => this.bench.find(target)?.place);
    if (targets.length < 2) {
      say("Choose two controls or more: click, then Shift+click.", true);
      return;
    }
    const areas = arrangements[name]!(targets.map((target) => this.bench.find(target)!.place!));
    await this.place(new Map(targets.map((target, index) => [target, areas[index]!])));
  }

  private key(event: KeyboardEvent): void {
    const way = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] }[event.key];
    const target = (event.target as HTMLElement).dataset["box"];
    if ((event.ctrlKey || event.metaKey) && (event.key === "z" || event.key === "y")) {
      (event.key === "z" ? undo : redo)(this.editor.view);
    } else if (event.key === "Delete") {
      void this.remove();
    } else if (event.key === "Enter" || event.key === " ") {
      this.pick(target ?? "", event.shiftKey);
    } else if (way && target !== undefined && this.showsOrder) {
      const at = this.stops.findIndex((stop) => stop.target === target);
      void this.reorder(target, this.stops[at + way[0]! + way[1]!]?.target);
    } else if (way && target !== undefined) {
      void this.nudge(target, way[0]! * grid, way[1]! * grid, event.shiftKey);
    } else {
      return;
    }
    event.preventDefault();
  }

  private async nudge(target: string, dx: number, dy: number, sizes: boolean): Promise<void> {
    if (!this.selected.includes(target)) {
      this.pick(target, false);
    }
    const areas = this.selected.map((each): [string, Area] => {
      const area = this.bench.find(each)!.place!;
      return [each, sizes ? { ...area, width: area.width + dx, height: area.height + dy } : { ...area, x: area.x + dx, y: area.y + dy }];
    });
    await this.place(new Map(areas));
  }

  private async remove(): Promise<void> {
    const lines = this.selected.map((target) => lineOf(this.bench.find(target)));
    if (lines.length > 0) {
      await this.change("lytdlg/removeControls", { lines });
    }
  }

  private async add(x: number, y: number): Promise<void> {
    const type = this.armed;
    const size = type === undefined ? undefined : palette[type];
    this.armed = undefined;
    (this.bar.querySelector("select") as HTMLSelectElement).value = "";
    if (!type || !size) {
      return;
    }
    const { languages } = this.bench;
    const hasCaption = !withoutCaption.includes(type);
    const fields = [{ name: "Name", value: "" }, ...(hasCaption ? languages.map((name) => ({ name: `Text in ${name}`, value: "" })) : [])];
    const answer = await ask(`New ${type}`, fields);
    if (!answer) {
      return;
    }
    const [name, ...texts] = answer;
    const scale = this.bench.dpi / 96;
    const params = {
      type,
      dpi: this.bench.dpi,
      x: Math.round(x / grid) * grid,
      y: Math.round(y / grid) * grid,
      width: Math.round(size.width * scale),
      height: Math.round(size.height * scale),
      ...(name ? { name } : {}),
      ...(texts[0] ? { text: texts[0] } : {}),
    };
    await this.change("lytdlg/newControl", params, (edit) => this.translate(edit, texts[0] ?? "", texts));
  }

  // Each language has the text that was given for it.
  private translate(edit: WorkspaceEdit, first: string, texts: string[]): void {
    this.bench.languages.forEach((language, index) => {
      const uri = Object.keys(edit.changes).find((each) => decodeURIComponent(each).endsWith(`/${language}.nls`));
      for (const change of uri === undefined ? [] : (edit.changes[uri] ?? [])) {
        change.newText = change.newText.replace(`=${first}`, () => `=${texts[index] || first}`);
      }
    });
  }
}
