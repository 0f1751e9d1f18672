// The place where the dialog is worked: its windows, the message boxes on top of them, and what the user does as acts.
import { named, quoted, type Bench, type Drawn } from "../bench";
import { find, make, say } from "../dom";
import type { Control, Item } from "../engine/contract";
import { accessKey, focusable, WindowView, type Hand } from "./windows";

export class Stage {
  readonly element = find("stage");
  showsGhosts = false;
  // Something else works the windows, such as the design.
  isAsleep = false;
  private readonly windows: WindowView[] = [];
  private readonly box = make("div", { class: "window message", role: "alertdialog", "aria-label": "Message", hidden: true });
  private isRendering = false;
  // How many acts have had their messages read.
  private read = "";

  constructor(private readonly bench: Bench) {
    this.element.append(this.box);
    bench.drawn.on((drawn) => this.render(drawn));
    bench.busy.on((isBusy) => this.element.setAttribute("aria-busy", String(isBusy)));
    bench.failed.on((reason) => {
      // The last picture stays, so that the author sees where the text was right.
      this.element.classList.add("refused");
      this.tell(reason, true);
    });
    bench.refusedAct.on(({ act, reason }) => say(`${act}: ${reason}`, true));
    this.element.addEventListener("focusin", (event) => this.follow(event.target as HTMLElement));
    this.element.addEventListener("keydown", (event) => this.key(event), true);
    this.element.addEventListener("pointerdown", (event) => this.askByClick(event), true);
    this.element.addEventListener("click", (event) => event.altKey && this.stop(event), true);
  }

  get topElement(): HTMLElement | undefined {
    return this.windows.at(-1)?.element;
  }

  elementOf(target: string): HTMLElement | undefined {
    return this.windows.at(-1)?.elementOf(target);
  }

  // The controls that something else on the page is about.
  mark(targets: string[]): void {
    this.element.querySelectorAll(".found").forEach((element) => element.classList.remove("found"));
    targets.forEach((target) => this.elementOf(target)?.classList.add("found"));
  }

  redraw(): void {
    if (this.bench.play) {
      this.render({ play: this.bench.play, isNewest: true });
    }
  }

  private readonly hand: Hand = {
    act: (line, replaces) => this.bench.act(line, replaces),
    type: (control, text) => this.bench.act(`set ${named(control.target)} = ${quoted(text)}`, `set ${named(control.target)} = `),
    press: (control) => this.press(control),
    select: (control, item) => this.select(control, item),
    mark: (control, item) => this.bench.act(`${item.marked ? "uncheck" : "check"} ${named(control.target)} ${quoted(item.text)}`),
    open: (control, item) =>
      this.bench.act(`${item.open ? "collapse" : "expand"} ${named(control.target)} ${quoted(item.path ?? item.text)}`),
    doubleClick: (control, item) => {
      const name = control.type === "Tree" ? ` ${quoted(item.path ?? item.text)}` : "";
      this.bench.act(`doubleclick ${named(control.target)}${name}`);
    },
  };

  private press(control: Control): void {
    const mark = control.checked ? "uncheck" : "check";
    const words: Record<string, string> = { CheckBox: mark, OptionButton: "check" };
    const whole: Record<string, string> = { OKButton: "ok", CancelButton: "cancel" };
    this.bench.act(whole[control.type] ?? `${words[control.type] ?? "press"} ${named(control.target)}`);
  }

  // As a click does it, which takes the focus there too.
  private select(control: Control, item: Item): void {
    const begin = `select ${named(control.target)} `;
    this.bench.act(begin + quoted(item.path ?? item.text), begin);
  }

  private render({ play, isNewest }: Drawn): void {
    this.isRendering = true;
    this.element.classList.remove("refused");
    const hadFocus = this.element.contains(document.activeElement);
    while (this.windows.length > play.dialogs.length) {
      this.windows.pop()?.element.remove();
    }
    while (this.windows.length < play.dialogs.length) {
      const view = new WindowView(this.hand);
      this.windows.push(view);
      this.box.before(view.element);
    }
    const isOpen = play.outcome === "open" || play.outcome === "refused";
    const mayChange = (element: HTMLElement) => isNewest || !element.contains(document.activeElement);
    play.dialogs.forEach((window, index) => {
      const view = this.windows[index];
      view?.update(window, this.showsGhosts, mayChange);
      view?.element.toggleAttribute("inert", !isOpen || index < play.dialogs.length - 1);
    });
    this.element.classList.toggle("closed", !isOpen);
    if (isNewest) {
      this.showMessages();
      this.tellOutcome();
      if (hadFocus) {
        this.takeFocus();
      }
    }
    this.isRendering = false;
  }

  // The control that has the focus in the dialog has it in the page.
  takeFocus(): void {
    if (this.isAsleep) {
      return;
    }
    if (!this.box.hidden) {
      this.box.querySelector("button")?.focus();
      return;
    }
    const focused = this.bench.top?.controls.find((control) => control.focus);
    const element = focused && this.elementOf(focused.target);
    const field = element && focusable(element);
    if (field && !element.contains(document.activeElement)) {
      field.focus({ preventScroll: true });
      if (field instanceof HTMLInputElement && field.classList.contains("field")) {
        field.select();
      }
    } else if (!focused && !this.element.contains(document.activeElement)) {
      find("undo").focus();
    }
  }

  private showMessages(): void {
    const { acts } = this.bench.scene;
    const mine = this.bench.play?.messages.filter((message) => message.act === acts.length - 1) ?? [];
    const key = JSON.stringify([acts, this.bench.scene.input, mine]);
    this.box.hidden = mine.length === 0 || key === this.read;
    if (this.box.hidden) {
      return;
    }
    const close = make("button", { type: "button", class: "push default" }, "OK");
    close.addEventListener("click", () => {
      this.read = key;
      this.box.hidden = true;
      this.takeFocus();
    });
    const texts = mine.map(({ text }) => make("p", {}, text));
    this.box.replaceChildren(make("div", { class: "words" }, ...texts), make("div", { class: "foot" }, close));
    if (document.activeElement === document.body || this.element.contains(document.activeElement)) {
      close.focus();
    }
  }

  private tellOutcome(): void {
    const { play, scene } = this.bench;
    const failed = play?.failed;
    if (failed) {
      const act = failed.act < 0 ? "the acts" : `act ${failed.act + 1}, "${scene.acts[failed.act] ?? ""}"`;
      this.tell(`The dialog is shown before ${act}: ${failed.reason}`, true);
      return;
    }
    const words: Record<string, string> = { confirmed: "Confirmed.", cancelled: "Cancelled.", refused: "OK was refused." };
    this.tell(words[play?.outcome ?? ""] ?? "", false);
  }

  private tell(text: string, isWarning: boolean): void {
    const line = find("outcome");
    line.textContent = text;
    line.classList.toggle("warning", isWarning);
  }

  private targetAt(element: Element | null): string | undefined {
    return element?.closest<HTMLElement>("[data-target]")?.dataset["target"];
  }

  private follow(element: HTMLElement): void {
    const target = this.targetAt(element);
    const control = target === undefined ? undefined : this.bench.find(target);
    // An option that gets the focus would be chosen by that, and a button is about to be pressed.
    const isQuiet = element.matches("button, [type=radio]");
    if (this.isRendering || this.isAsleep || !control || control.focus || isQuiet) {
      return;
    }
    this.bench.act(`focus ${named(control.target)}`);
  }

  private key(event: KeyboardEvent): void {
    const target = this.targetAt(event.target as Element);
    if (this.isAsleep) {
      return;
    }
    if (event.key === "F1") {
      this.stop(event);
      this.bench.askAbout(target);
    } else if (!this.box.hidden) {
      if (event.key === "Escape") {
        this.stop(event);
        this.box.querySelector("button")?.click();
      }
    } else if (event.key === "Escape") {
      this.stop(event);
      this.bench.act("cancel");
    } else if (event.key === "Enter" && !(event.target as Element).matches("button")) {
      this.stop(event);
      this.bench.act("key return");
    } else if (event.altKey && event.key.length === 1) {
      this.pressAccessKey(event);
    }
  }

  private pressAccessKey(event: KeyboardEvent): void {
    const letter = event.key.toLowerCase();
    const controls = this.bench.top?.controls ?? [];
    const isMeant = (control: Control) => control.shown && accessKey(control.text) === letter;
    if (controls.some((control) => isMeant(control) && control.type !== "TextBox")) {
      this.stop(event);
      this.bench.act(`key alt+${letter}`);
    }
  }

  private askByClick(event: PointerEvent): void {
    const target = this.targetAt(event.target as Element) ?? this.disabledAt(event);
    if (event.altKey && target !== undefined) {
      this.stop(event);
      this.bench.askAbout(target);
    }
  }

  // Disabled fields hear no pointer.
  private disabledAt(event: PointerEvent): string | undefined {
    const under = document.elementsFromPoint(event.clientX, event.clientY);
    return under.map((element) => this.targetAt(element)).find((target) => target !== undefined);
  }

  private stop(event: Event): void {
    event.preventDefault();
    event.stopPropagation();
  }
}
