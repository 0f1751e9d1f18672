// From the disk and back: by the browser's access to folders where it has one, else by dragging in and saving out.
import { bytesOf, isLanguageFile, type Files } from "./files";

const endings = [".dlg", ".nls", ".case", ".ini", ".items", ".script", ".steps", ".txt"];
const largest = 1 << 20;

interface Found {
  path: string;
  file: File;
}

function isText(found: Found): boolean {
  return endings.some((ending) => found.path.toLowerCase().endsWith(ending)) && found.file.size <= largest;
}

interface Folder extends FileSystemDirectoryHandle {
  values(): AsyncIterable<FileSystemDirectoryHandle | FileSystemFileHandle>;
}

interface Picker {
  showDirectoryPicker?: (options: { mode: string }) => Promise<Folder>;
}

async function filesBelow(folder: Folder, path: string): Promise<Found[]> {
  const found: Found[] = [];
  for await (const entry of folder.values()) {
    const inner = `${path}/${entry.name}`;
    if (entry.kind === "directory") {
      found.push(...(await filesBelow(entry as Folder, inner)));
    } else {
      found.push({ path: inner, file: await entry.getFile() });
    }
  }
  return found;
}

// In a page that is a file itself, a browser that has this gives a folder that is dragged in no other way.
interface Dragged extends DataTransferItem {
  getAsFileSystemHandle?: () => Promise<FileSystemHandle | null>;
}

export class Disk {
  private folder: Folder | undefined;

  // Takes the texts in place of those that are there.
  constructor(private readonly files: Files, private readonly taken: () => void) {}

  async openFolder(): Promise<void> {
    const pick = (window as Picker).showDirectoryPicker;
    if (!pick) {
      this.openByInput();
      return;
    }
    const folder = await pick.call(window, { mode: "readwrite" });
    await this.takeAll(await filesBelow(folder, folder.name), folder);
  }

  private openByInput(): void {
    const input = document.createElement("input");
    input.type = "file";
    input.webkitdirectory = true;
    input.addEventListener("change", () => {
      const found = [...(input.files ?? [])].map((file) => ({ path: file.webkitRelativePath, file }));
      void this.takeAll(found);
    });
    input.click();
  }

  // What was dragged can be asked for during the event only.
  async drop(event: DragEvent): Promise<void> {
    const items = [...(event.dataTransfer?.items ?? [])] as Dragged[];
    const dragged = items.map((item) => ({ file: item.getAsFile(), handle: item.getAsFileSystemHandle?.().catch(() => null) }));
    const found: Found[] = [];
    let folder: Folder | undefined;
    for (const { file, handle } of dragged) {
      const entry = await handle;
      if (entry?.kind === "directory") {
        folder = entry as Folder;
        found.push(...(await filesBelow(folder, folder.name)));
      } else if (file) {
        // Without a folder, a language file is where the library looks for it.
        found.push({ path: `dropped/${isLanguageFile(file.name) ? "lang/" : ""}${file.name}`, file });
      }
    }
    await this.takeAll(found, dragged.length === 1 ? folder : undefined);
  }

  private async takeAll(found: Found[], folder?: Folder): Promise<void> {
    const texts = found.filter(isText);
    if (texts.length === 0) {
      throw new Error("there is no description among these files");
    }
    this.folder = folder;
    this.files.clear();
    for (const { path, file } of texts) {
      const bytes = new Uint8Array(await file.arrayBuffer());
      this.files.put(path, bytes, bytes);
    }
    this.taken();
  }

  // Into the folder, else as downloads.
  async save(): Promise<number> {
    const paths = this.files.paths.filter((path) => this.files.isUnsaved(path));
    for (const path of paths) {
      const file = this.files.get(path);
      if (file) {
        await this.saveOne(path, bytesOf(file));
        this.files.saved(path);
      }
    }
    return paths.length;
  }

  private async saveOne(path: string, bytes: Uint8Array): Promise<void> {
    if (!this.folder) {
      download(path.slice(path.lastIndexOf("/") + 1), bytes);
      return;
    }
    let folder: FileSystemDirectoryHandle = this.folder;
    const [, ...words] = path.split("/");
    for (const word of words.slice(0, -1)) {
      folder = await folder.getDirectoryHandle(word, { create: true });
    }
    const handle = await folder.getFileHandle(words.at(-1) ?? "", { create: true });
    const stream = await handle.createWritable();
    await stream.write(bytes as Uint8Array<ArrayBuffer>);
    await stream.close();
  }
}

export function download(name: string, bytes: Uint8Array): void {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(new Blob([bytes as Uint8Array<ArrayBuffer>]));
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
}
