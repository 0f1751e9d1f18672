// What all parts of the page share: the texts, the engine, the dialog that is tried and the acts that it has seen. A dialog is
// played from its beginning after each act and each change of a text, so that nothing can get out of step.
import type { Client } from "./engine/client";
import type { Control, DialogWindow, Play, Range, Trial } from "./engine/contract";
import { isDescription, isLanguageFile, pathOf, uriOf, type Files } from "./files/files";
import { Signal } from "./signal";

export interface Scene {
  input: string;
  acts: string[];
  // Taken back, the last one first.
  undone: string[];
}

export interface Drawn {
  play: Play;
  // Nothing has changed since it was asked for.
  isNewest: boolean;
}

export interface Place {
  path: string;
  range: Range;
}

export class Bench {
  dialog = "";
  language = "English";
  dpi = 96;
  play: Play | undefined;
  // A control of the window on top that was asked about.
  chosen: string | undefined;
  readonly scenes = new Map<string, Scene>();
  // Another dialog, input, language or resolution, or other acts.
  readonly turned = new Signal();
  readonly drawn = new Signal<Drawn>();
  // Whether what is drawn is about to change.
  readonly busy = new Signal<boolean>();
  // The reason why there is nothing to draw.
  readonly failed = new Signal<string>();
  readonly refusedAct = new Signal<{ act: string; reason: string }>();
  readonly lit = new Signal<Place | undefined>();
  readonly asked = new Signal<string | undefined>();
  private isPlaying = false;
  private isStale = false;

  constructor(readonly files: Files, readonly client: Client) {
    files.changed.on(() => this.draw());
    files.activated.on((path) => {
      if (isDescription(path) && path !== this.dialog) {
        this.dialog = path;
        this.chosen = undefined;
        this.play = undefined;
        this.turn();
      }
    });
  }

  get scene(): Scene {
    let scene = this.scenes.get(this.dialog);
    if (!scene) {
      scene = { input: "", acts: [], undone: [] };
      this.scenes.set(this.dialog, scene);
    }
    return scene;
  }

  get trial(): Trial & { textDocument: { uri: string } } {
    const { input, acts } = this.scene;
    return { textDocument: { uri: uriOf(this.dialog) }, input, acts, language: this.language, dpi: this.dpi };
  }

  get top(): DialogWindow | undefined {
    return this.play?.dialogs.at(-1);
  }

  // The description that the window on top is from.
  get topPath(): string {
    const uri = this.top?.uri;
    return uri ? pathOf(uri) : this.dialog;
  }

  get languages(): string[] {
    const folder = this.dialog.slice(0, this.dialog.lastIndexOf("/") + 1) + "lang/";
    return this.files.paths
      .filter((path) => path.startsWith(folder) && isLanguageFile(path))
      .map((path) => path.slice(folder.length, path.lastIndexOf(".")));
  }

  find(target: string): Control | undefined {
    return this.top?.controls.find((control) => control.target === target);
  }

  begin(input: string, acts: string[] = []): void {
    Object.assign(this.scene, { input, acts, undone: [] });
    this.turn();
  }

  // The engine begins first, so that it works while the page shows what has turned.
  turn(): void {
    this.draw();
    this.turned.send();
  }

  // An act takes the place of the last one if that began alike: what is typed into a field is one act, and so is the way of
  // the focus. An act on a control takes the focus there itself.
  act(line: string, replaces?: string): void {
    const { acts } = this.scene;
    const failed = this.play?.failed;
    if (failed && failed.act >= 0) {
      acts.splice(failed.act);
    }
    const last = acts.at(-1);
    const isOnWay = last?.startsWith("focus ") && !line.startsWith("key ") && !line.startsWith("enter ");
    if (isOnWay || (replaces !== undefined && last?.startsWith(replaces))) {
      acts.pop();
    }
    if (replaces !== undefined && isOnWay && acts.at(-1)?.startsWith(replaces)) {
      acts.pop();
    }
    acts.push(line);
    this.scene.undone = [];
    this.turn();
  }

  back(): void {
    const act = this.scene.acts.pop();
    if (act !== undefined) {
      this.scene.undone.push(act);
      this.turn();
    }
  }

  forth(): void {
    const act = this.scene.undone.pop();
    if (act !== undefined) {
      this.scene.acts.push(act);
      this.turn();
    }
  }

  askAbout(target: string | undefined): void {
    this.chosen = target;
    this.asked.send(target);
  }

  // One play at a time; what changes meanwhile is played next.
  draw(): void {
    this.isStale = true;
    if (!this.isPlaying && this.dialog !== "") {
      void this.playAll();
    }
  }

  private async playAll(): Promise<void> {
    this.isPlaying = true;
    this.busy.send(true);
    while (this.isStale) {
      this.isStale = false;
      await this.playOnce();
    }
    this.isPlaying = false;
    this.busy.send(false);
  }

  private async playOnce(): Promise<void> {
    const trial = { ...this.trial, acts: [...this.scene.acts] };
    const dialog = this.dialog;
    try {
      const play = await this.client.ask<Play>("lytdlg/play", trial);
      if (dialog === this.dialog) {
        this.take(play, trial.acts);
      }
    } catch (failure) {
      this.failed.send((failure as Error).message);
    }
  }

  private take(play: Play, acts: string[]): void {
    if (play.outcome === "not opened") {
      const { number, message } = play.failure ?? { number: "", message: "" };
      this.failed.send(`The library refuses the dialog (message ${number}): ${message}`);
      return;
    }
    const failed = play.failed;
    // The act that was just tried is dropped; one before it has lost its meaning by a change of the text, and is kept.
    if (failed && !this.isStale && failed.act === acts.length - 1 && failed.act >= 0) {
      this.scene.acts.pop();
      this.refusedAct.send({ act: acts[failed.act] ?? "", reason: failed.reason });
      this.turned.send();
      delete play.failed;
    }
    this.play = play;
    this.drawn.send({ play, isNewest: !this.isStale });
  }
}

// As the language of acts has it.
export function quoted(text: string): string {
  const escapes: Record<string, string> = { "\n": "\\n", "\t": "\\t", '"': '\\"', "\\": "\\\\" };
  return `"${text.replace(/[\\"\n\t]/g, (character) => escapes[character] ?? "")}"`;
}

export function named(target: string): string {
  return /^[\w#]+$/.test(target) ? target : quoted(target);
}
