// The state of the page as the end of its address, and back; and all files as a zip.
import { deflateSync, inflateSync, strFromU8, strToU8, zipSync } from "fflate";
import { packed, unpacked } from "../files/codepage";
import { bytesOf, type Files } from "../files/files";
import type { Kept } from "../files/keep";

const letters: Record<string, string> = { "+": "-", "/": "_", "=": "" };

export function hashOf(state: Kept): string {
  const bytes = deflateSync(strToU8(JSON.stringify(state)), { level: 9 });
  return "#" + btoa(packed(bytes)).replace(/[+/=]/g, (letter) => letters[letter] ?? "");
}

export function stateIn(hash: string): Kept | undefined {
  if (hash.length < 2) {
    return undefined;
  }
  try {
    const bytes = unpacked(atob(hash.slice(1).replaceAll("-", "+").replaceAll("_", "/")));
    return JSON.parse(strFromU8(inflateSync(bytes))) as Kept;
  } catch {
    return undefined;
  }
}

// All have the earliest time that a zip can have, so that the same files give the same bytes.
export function zipOf(files: Files): Uint8Array {
  const all = files.paths.map((path) => [path, bytesOf(files.get(path)!)] as const);
  return zipSync(Object.fromEntries(all), { mtime: new Date(1980, 0, 1) });
}
