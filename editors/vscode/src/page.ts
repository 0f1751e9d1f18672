// The page inside the panel: the picture, and over each control what takes the user's act.

export interface ControlShown {
  target: string;
  type: string;
  place: { x: number; y: number; width: number; height: number } | null;
  text: string;
  value: string | null;
  items: { text: string }[];
  enabled: boolean;
  shown: boolean;
}

// What the panel needs of the answer to `lytdlg/play`.
export interface Played {
  svg?: string;
  outcome: string;
  result?: string;
  failure?: { number: string; message: string };
  failed?: { reason: string };
  messages: { text: string }[];
  dialogs: { controls: ControlShown[] }[];
}

export type FromPage = { kind: "act"; act: string } | { kind: "back" } | { kind: "input"; input: string };

export type ToPage = { acts: string[] } & ({ played: Played } | { error: string });

export interface Host {
  postMessage(message: FromPage): void;
}

// Runs in the page, and is sent there as text: it may use nothing from outside.
export function showDrawings(host: Host): void {
  const find = (name: string) => document.getElementById(name)!;
  const picture = find("picture");
  const input = find("input") as HTMLInputElement;
  input.addEventListener("change", () => host.postMessage({ kind: "input", input: input.value }));
  find("back").addEventListener("click", () => host.postMessage({ kind: "back" }));

  const act = (words: string) => host.postMessage({ kind: "act", act: words });
  // As the language of acts has it.
  const quoted = (text: string) => `"${text.replace(/[\\"]/g, "\\$&")}"`;

  function fieldOver(control: ControlShown): HTMLElement {
    const field = document.createElement("input");
    field.value = control.value ?? "";
    field.addEventListener("change", () => act(`set ${control.target} = ${quoted(field.value)}`));
    return field;
  }

  function listOver(control: ControlShown): HTMLElement {
    const list = document.createElement("select");
    for (const item of control.items) {
      list.add(new Option(item.text, item.text, false, item.text === control.text));
    }
    list.addEventListener("change", () => act(`select ${control.target} ${quoted(list.value)}`));
    return list;
  }

  function buttonOver(control: ControlShown): HTMLElement {
    const button = document.createElement("button");
    button.addEventListener("click", () => act(`press ${control.target}`));
    return button;
  }

  const over: Record<string, (control: ControlShown) => HTMLElement> = {
    TextBox: fieldOver,
    ListBox: listOver,
    DropListBox: listOver,
    ComboBox: fieldOver,
    CheckBox: buttonOver,
    OptionButton: buttonOver,
    PushButton: buttonOver,
    OKButton: buttonOver,
    CancelButton: buttonOver,
  };

  function place(element: HTMLElement, control: ControlShown): void {
    const { x, y, width, height } = control.place!;
    Object.assign(element.style, { left: `${x}px`, top: `${y}px`, width: `${width}px`, height: `${height}px` });
    element.title = control.target;
    element.setAttribute("aria-label", control.text || control.target);
    picture.append(element);
  }

  const tell = (...lines: string[]) => (find("told").textContent = lines.join("\n"));

  window.addEventListener("message", (event: MessageEvent<ToPage>) => {
    find("acts").textContent = event.data.acts.join("\n");
    if ("error" in event.data) {
      tell(event.data.error);
      return;
    }
    const { svg, outcome, result, failure, failed, messages, dialogs } = event.data.played;
    if (failure) {
      // The last picture stays, so that the author sees where the text was right.
      tell(`the library refuses the dialog: ${failure.number}: ${failure.message}`);
      return;
    }
    const reasons = failed ? [failed.reason] : [];
    const results = result === undefined ? [] : [`result: ${result}`];
    tell(...messages.map((message) => message.text), ...reasons, outcome, ...results);
    picture.innerHTML = svg ?? "";
    // A dialog that is closed is shown as it was, with nothing to act on.
    const isOpen = outcome === "open" || outcome === "refused";
    for (const control of (isOpen && dialogs.at(-1)?.controls) || []) {
      const make = over[control.type];
      if (make && control.place && control.shown && control.enabled) {
        place(make(control), control);
      }
    }
  });
}

export function pageOf(): string {
  const nonce = Math.random().toString(36).slice(2);
  const policy = `default-src 'none'; style-src 'unsafe-inline'; script-src 'nonce-${nonce}'`;
  return `<!DOCTYPE html>
<html lang="en">
<head>
<meta http-equiv="Content-Security-Policy" content="${policy}">
<style>
  #picture { position: relative; display: inline-block; margin: 1em 0; }
  #picture svg { display: block; }
  #picture input, #picture select, #picture button {
    position: absolute; box-sizing: border-box; margin: 0; opacity: 0; font: 11px sans-serif;
  }
  #picture input:focus, #picture select:focus { opacity: 1; }
  #picture button:focus-visible { opacity: 0.2; }
  pre { white-space: pre-wrap; }
</style>
</head>
<body>
<label>Input <input id="input"></label> <button id="back">Undo the last act</button>
<div id="picture"></div>
<pre id="told" role="status"></pre>
<pre id="acts"></pre>
<script nonce="${nonce}">(${showDrawings.toString()})(acquireVsCodeApi());</script>
</body>
</html>`;
}
