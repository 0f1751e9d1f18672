// The state of the page as the end of its address, and back.
import type { Kept } from "../files/keep";
import { through } from "./zip";

const letters: Record<string, string> = { "+": "-", "/": "_", "=": "" };

export async function hashOf(state: Kept): Promise<string> {
  const packed = await through(new TextEncoder().encode(JSON.stringify(state)), new CompressionStream("deflate-raw"));
  const binary = Array.from(packed, (byte) => String.fromCharCode(byte)).join("");
  return "#" + btoa(binary).replace(/[+/=]/g, (letter) => letters[letter] ?? "");
}

export async function stateIn(hash: string): Promise<Kept | undefined> {
  if (hash.length < 2) {
    return undefined;
  }
  try {
    const binary = atob(hash.slice(1).replaceAll("-", "+").replaceAll("_", "/"));
    const bytes = await through(Uint8Array.from(binary, (letter) => letter.charCodeAt(0)), new DecompressionStream("deflate-raw"));
    return JSON.parse(new TextDecoder().decode(bytes)) as Kept;
  } catch {
    return undefined;
  }
}
