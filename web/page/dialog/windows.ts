// The open windows as elements: each control where the engine has it, as a real field. An element lives as long as its control
// does, so that the focus and the place of the cursor stay while the dialog is played again and again.
import type { Control, DialogWindow, Item } from "../engine/contract";
import { make } from "../dom";

// What the user does in a window.
export interface Hand {
  act(line: string, replaces?: string): void;
  type(control: Control, text: string): void;
  press(control: Control): void;
  select(control: Control, item: Item): void;
  mark(control: Control, item: Item): void;
  open(control: Control, item: Item): void;
  doubleClick(control: Control, item: Item): void;
}

export interface Face {
  element: HTMLElement;
  // A field under the user's hands keeps its text, and a list its choice.
  update(control: Control, mayChangeText: boolean): void;
}

// A caption with its access key underlined.
export function caption(text: string): (Node | string)[] {
  const parts = text.split(/&(&|.)/s);
  return parts.map((part, index) => (index % 2 === 1 && part !== "&" ? make("u", {}, part) : part));
}

export function plain(text: string): string {
  return text.replace(/&(&|.)/gs, "$1");
}

export function accessKey(text: string): string | undefined {
  return /&([^&])/.exec(text.replaceAll("&&", ""))?.[1]?.toLowerCase();
}

function place(element: HTMLElement, control: Control): void {
  const { x, y, width, height } = control.place ?? { x: 0, y: 0, width: 0, height: 0 };
  Object.assign(element.style, { left: `${x}px`, top: `${y}px`, width: `${width}px`, height: `${height}px` });
}

function textFace(): Face {
  const element = make("div", { class: "text" });
  return { element, update: (control) => element.replaceChildren(...caption(control.text)) };
}

function frameFace(): Face {
  const words = make("span");
  const element = make("div", { class: "frame" }, words);
  return { element, update: (control) => words.replaceChildren(...caption(control.text)) };
}

function fieldFace(first: Control, hand: Hand): Face {
  const element = make("input", { class: "field", spellcheck: "false", autocomplete: "off" });
  let own = first;
  element.addEventListener("input", () => hand.type(own, element.value));
  return {
    element,
    update(control, mayChangeText) {
      own = control;
      element.disabled = !control.enabled;
      if (mayChangeText && element.value !== control.text) {
        element.value = control.text;
      }
    },
  };
}

function dropFace(first: Control, hand: Hand): Face {
  const element = make("select", { class: "drop" });
  let own = first;
  element.addEventListener("change", () => {
    const item = own.items[element.selectedIndex];
    if (item) {
      hand.select(own, item);
    }
  });
  return {
    element,
    update(control) {
      own = control;
      element.disabled = !control.enabled;
      const texts = control.items.map((item) => item.text);
      if (texts.join("\n") !== [...element.options].map((option) => option.text).join("\n")) {
        element.replaceChildren(...texts.map((text) => new Option(text, text)));
      }
      element.selectedIndex = control.chosen;
    },
  };
}

// Chooses the item there, or the last before it. The next key counts from it, although the dialog has not been played yet.
function chosen(control: Control, index: number, hand: Hand): Control {
  const at = Math.min(Math.max(index, 0), control.items.length - 1);
  const item = control.items[at];
  if (!item || !control.enabled) {
    return control;
  }
  hand.select(control, item);
  return { ...control, chosen: at };
}

// A field with a list that opens below it.
function comboFace(first: Control, hand: Hand): Face {
  const field = make("input", { class: "field", spellcheck: "false", autocomplete: "off", role: "combobox", "aria-expanded": "false" });
  const arrow = make("button", { class: "arrow", type: "button", tabindex: -1, "aria-label": "Open the list" });
  const list = make("div", { class: "popup", role: "listbox", hidden: true, "aria-label": "Items" });
  const element = make("div", { class: "combo" }, field, arrow, list);
  list.id = `popup-${Math.random().toString(36).slice(2)}`;
  field.setAttribute("aria-controls", list.id);
  let own = first;
  const open = (isOpen: boolean) => {
    list.hidden = !isOpen;
    field.setAttribute("aria-expanded", String(isOpen));
  };
  const choose = (index: number) => {
    own = chosen(own, index, hand);
    field.value = own.items[own.chosen]?.text ?? field.value;
  };
  field.addEventListener("input", () => hand.type(own, field.value));
  field.addEventListener("keydown", (event) => {
    if (event.key === "ArrowDown" || event.key === "ArrowUp") {
      event.preventDefault();
      choose(own.chosen + (event.key === "ArrowDown" ? 1 : -1));
    } else if (event.key === "F4") {
      event.preventDefault();
      open(list.hidden);
    }
  });
  field.addEventListener("blur", () => open(false));
  arrow.addEventListener("pointerdown", (event) => {
    event.preventDefault();
    field.focus();
    open(list.hidden);
  });
  list.addEventListener("pointerdown", (event) => event.preventDefault());
  return {
    element,
    update(control, mayChangeText) {
      own = mayChangeText ? control : { ...control, chosen: own.chosen };
      field.disabled = arrow.disabled = !control.enabled;
      if (mayChangeText && field.value !== control.text) {
        field.value = control.text;
      }
      const rows = control.items.map((item, index) => {
        const row = make("div", { role: "option", "aria-selected": String(index === control.chosen) }, item.text);
        row.addEventListener("click", () => {
          choose(index);
          open(false);
        });
        return row;
      });
      list.replaceChildren(...rows);
    },
  };
}

// A list, a list with marks, or a tree.
function listFace(first: Control, hand: Hand): Face {
  const isTree = first.type === "Tree";
  const hasMarks = first.type === "CheckListBox";
  const element = make("div", { class: "list", tabindex: 0, role: isTree ? "tree" : "listbox" });
  let own = first;
  const choose = (index: number) => (own = chosen(own, index, hand));
  const page = () => Math.max(1, Math.floor(own.inside.height / Math.max(1, own.itemHeight)) - 1);
  const steps: Record<string, () => number> = {
    ArrowDown: () => own.chosen + 1,
    ArrowUp: () => own.chosen - 1,
    PageDown: () => own.chosen + page(),
    PageUp: () => own.chosen - page(),
    Home: () => 0,
    End: () => own.items.length - 1,
  };
  element.addEventListener("keydown", (event) => {
    const step = steps[event.key];
    const item = own.items[own.chosen];
    const turnsBranch = isTree && item && event.key === (item.open ? "ArrowLeft" : "ArrowRight");
    if (step && !event.altKey && !event.ctrlKey) {
      choose(step());
    } else if (item && turnsBranch) {
      hand.open(own, item);
    } else if (item && hasMarks && event.key === " ") {
      hand.mark(own, item);
    } else if (own.items.length > 0 && event.key.length === 1 && event.key !== " " && !event.altKey && !event.ctrlKey) {
      const letter = event.key.toLowerCase();
      const order = own.items.map((_, index) => (own.chosen + 1 + index) % own.items.length);
      const found = order.find((index) => own.items[index]?.text.toLowerCase().startsWith(letter));
      choose(found ?? own.chosen);
    } else {
      return;
    }
    event.preventDefault();
  });

  function row(item: Item, index: number): HTMLElement {
    const isChosen = index === own.chosen;
    const made = make("div", { role: isTree ? "treeitem" : "option", id: `${element.id}-${index}`, "aria-selected": String(isChosen) });
    if (own.itemHeight > 0) {
      made.style.height = made.style.lineHeight = `${own.itemHeight}px`;
    }
    if (hasMarks) {
      made.setAttribute("aria-checked", String(item.marked === true));
      const mark = make("span", { class: "mark" });
      mark.addEventListener("click", (event) => {
        event.stopPropagation();
        hand.mark(own, item);
      });
      made.append(mark);
    }
    if (isTree) {
      const level = item.level ?? 0;
      made.setAttribute("aria-level", String(level + 1));
      made.style.paddingLeft = `${2 + level * 16}px`;
      const twig = make("span", { class: "twig" }, item.hasInner ? (item.open ? "−" : "+") : "");
      if (item.hasInner) {
        made.setAttribute("aria-expanded", String(item.open === true));
        twig.addEventListener("click", (event) => {
          event.stopPropagation();
          hand.open(own, item);
        });
      }
      made.append(twig);
    }
    made.append(make("span", { class: "words" }, item.text));
    made.addEventListener("click", () => choose(index));
    made.addEventListener("dblclick", () => hand.doubleClick(own, item));
    return made;
  }

  let shown = "";
  let shownChoice = "";
  return {
    element,
    update(control, mayChangeText) {
      own = mayChangeText ? control : { ...control, chosen: own.chosen };
      element.id ||= `list-${Math.random().toString(36).slice(2)}`;
      element.setAttribute("aria-disabled", String(!control.enabled));
      const now = JSON.stringify([control.items, control.chosen, control.enabled]);
      if (now === shown) {
        return;
      }
      shown = now;
      const { scrollTop } = element;
      element.replaceChildren(...control.items.map(row));
      element.scrollTop = scrollTop;
      const chosen = element.children[control.chosen];
      // A list that the user has scrolled stays where it is.
      const choice = control.items[control.chosen]?.text ?? "";
      if (choice !== shownChoice) {
        shownChoice = choice;
        chosen?.scrollIntoView({ block: "nearest" });
      }
      if (chosen) {
        element.setAttribute("aria-activedescendant", chosen.id);
      } else {
        element.removeAttribute("aria-activedescendant");
      }
    },
  };
}

// A check box or an option.
function markFace(first: Control, hand: Hand): Face {
  const isOption = first.type === "OptionButton";
  const mark = make("input", { type: isOption ? "radio" : "checkbox" });
  const words = make("span");
  const element = make("label", { class: "marked" }, mark, words);
  let own = first;
  mark.addEventListener("change", () => hand.press(own));
  return {
    element,
    update(control) {
      own = control;
      mark.disabled = !control.enabled;
      mark.checked = control.checked;
      element.setAttribute("aria-disabled", String(!control.enabled));
      words.replaceChildren(...caption(control.text));
    },
  };
}

function buttonFace(first: Control, hand: Hand): Face {
  const element = make("button", { class: "push", type: "button" });
  let own = first;
  element.addEventListener("click", () => hand.press(own));
  return {
    element,
    update(control) {
      own = control;
      element.disabled = !control.enabled;
      element.classList.toggle("default", control.default);
      element.replaceChildren(...caption(control.text));
    },
  };
}

const faces: Record<string, (control: Control, hand: Hand) => Face> = {
  Text: textFace,
  GroupBox: frameFace,
  TextBox: fieldFace,
  ListBox: listFace,
  CheckListBox: listFace,
  Tree: listFace,
  DropListBox: dropFace,
  ComboBox: comboFace,
  CheckBox: markFace,
  OptionButton: markFace,
  PushButton: buttonFace,
  OKButton: buttonFace,
  CancelButton: buttonFace,
};

// The element that has the focus when the control has it.
export function focusable(element: HTMLElement): HTMLElement | null {
  const inner = "input, select, button, [tabindex='0']";
  return element.matches(inner) ? element : element.querySelector<HTMLElement>(inner);
}

const titleBar = 3;

export class WindowView {
  readonly element = make("div", { class: "window", role: "group" });
  private readonly title = make("div", { class: "title" });
  private readonly close = make("button", { class: "close", type: "button", "aria-label": "Close the dialog", tabindex: -1 }, "×");
  private readonly faces = new Map<string, Face & { type: string }>();

  constructor(private readonly hand: Hand) {
    this.close.addEventListener("click", () => hand.act("cancel"));
    this.element.append(this.title, this.close);
  }

  elementOf(target: string): HTMLElement | undefined {
    return this.faces.get(target)?.element;
  }

  update(window: DialogWindow, showsGhosts: boolean, mayChangeText: (element: HTMLElement) => boolean): void {
    this.element.setAttribute("aria-label", window.title);
    Object.assign(this.element.style, {
      width: `${window.width}px`,
      height: `${window.height}px`,
      fontSize: `${Math.round((window.dpi * 8) / 72)}px`,
      lineHeight: `${window.textHeight}px`,
    });
    this.element.style.setProperty("--mark", `${Math.round((window.dpi * 13) / 96)}px`);
    this.title.textContent = window.title;
    Object.assign(this.title.style, { height: `${window.client.y - titleBar}px`, lineHeight: `${window.client.y - titleBar}px` });

    const gone = new Set(this.faces.keys());
    let before: Element = this.close;
    let label = "";
    for (const control of window.controls) {
      const make = faces[control.type];
      if (!make || !control.place) {
        continue;
      }
      let face = this.faces.get(control.target);
      if (face?.type !== control.type) {
        face?.element.remove();
        face = { ...make(control, this.hand), type: control.type };
        this.faces.set(control.target, face);
      }
      gone.delete(control.target);
      const { element } = face;
      if (before.nextElementSibling !== element) {
        before.after(element);
      }
      before = element;
      element.dataset["target"] = control.target;
      place(element, control);
      element.classList.toggle("ghost", !control.shown);
      element.hidden = !control.shown && !showsGhosts;
      element.classList.toggle("disabled", !control.enabled);
      if (make === textFace) {
        element.classList.toggle("line", control.place.height < 2 * window.textHeight);
        element.setAttribute("aria-disabled", String(!control.enabled));
      }
      face.update(control, mayChangeText(element));
      const field = focusable(element);
      if (field && (make === fieldFace || make === listFace || make === dropFace || make === comboFace)) {
        field.setAttribute("aria-label", label || control.target);
      }
      if (field instanceof HTMLInputElement && field.type === "radio") {
        field.name = `${control.group ?? "options"}-${window.title}`;
      }
      field?.toggleAttribute("inert", !control.shown);
      label = make === textFace ? plain(control.text) : "";
    }
    for (const target of gone) {
      this.faces.get(target)?.element.remove();
      this.faces.delete(target);
    }
  }
}
