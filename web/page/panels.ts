// The tabs below the text.
import { find } from "./dom";
import { Signal } from "./signal";

export class Panels {
  readonly shown = new Signal<string>();
  current = "acts";

  constructor(private readonly names: string[]) {
    for (const name of names) {
      const tab = find(`tab-${name}`);
      tab.addEventListener("click", () => this.show(name));
      tab.addEventListener("keydown", (event) => {
        const step = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
        const next = step && names[(names.indexOf(name) + step + names.length) % names.length];
        if (next) {
          this.show(next);
          find(`tab-${next}`).focus();
        }
      });
    }
  }

  show(name: string): void {
    this.current = name;
    for (const each of this.names) {
      const isShown = each === name;
      find(`page-${each}`).hidden = !isShown;
      find(`tab-${each}`).setAttribute("aria-selected", String(isShown));
      find(`tab-${each}`).tabIndex = isShown ? 0 : -1;
    }
    this.shown.send(name);
  }
}
