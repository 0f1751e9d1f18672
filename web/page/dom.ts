// Small helpers for elements of the page.

type Attributes = Record<string, string | number | boolean | undefined>;

export function find<T extends HTMLElement = HTMLElement>(id: string): T {
  return document.getElementById(id) as T;
}

// An attribute that is false or undefined is left out.
export function make<K extends keyof HTMLElementTagNameMap>(
  tag: K,
  attributes: Attributes = {},
  ...children: (Node | string)[]
): HTMLElementTagNameMap[K] {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (value !== undefined && value !== false) {
      element.setAttribute(name, value === true ? "" : String(value));
    }
  }
  element.append(...children);
  return element;
}

export function button(text: string, title: string, act: () => void): HTMLButtonElement {
  const made = make("button", { type: "button", title }, text);
  made.addEventListener("click", act);
  return made;
}

// Asks for texts in a box on top of the page; nothing if the user does not want to.
export function ask(title: string, fields: { name: string; value: string; options?: string[] }[]): Promise<string[] | null> {
  const inputs = fields.map(({ name, value, options }) => {
    if (!options) {
      return make("input", { "aria-label": name, value, spellcheck: "false" });
    }
    const list = make("select", { "aria-label": name }, ...options.map((each) => new Option(each, each)));
    list.value = value;
    return list;
  });
  const rows = inputs.map((input, index) => make("label", {}, make("span", {}, fields[index]?.name ?? ""), input));
  const buttons = make("div", { class: "row" }, make("button", { value: "yes", class: "main" }, "OK"), make("button", { value: "" }, "Cancel"));
  const box = make("dialog", { class: "ask", "aria-label": title }, make("form", { method: "dialog" }, make("h2", {}, title), ...rows, buttons));
  document.body.append(box);
  box.showModal();
  const first = inputs[0];
  first?.focus();
  if (first instanceof HTMLInputElement) {
    first.select();
  }
  return new Promise((resolve) =>
    box.addEventListener("close", () => {
      box.remove();
      resolve(box.returnValue === "yes" ? inputs.map((input) => input.value) : null);
    }),
  );
}

// What has happened, in the line at the bottom, where screen readers hear it.
export function say(text: string, isWarning = false): void {
  const line = find("status");
  line.textContent = text;
  line.classList.toggle("warning", isWarning);
}
