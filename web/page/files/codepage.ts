// Texts as bytes and back. Descriptions and language files are in code page 1252, in which the library reads them: each byte has
// a character, and comes back as it was. Cases and scripts are in UTF-8, unless their bytes say otherwise.

export type Encoding = "windows-1252" | "utf-8";

const decoder = new TextDecoder("windows-1252");
const byteOf = new Map<string, number>();
for (let byte = 0; byte < 256; ++byte) {
  byteOf.set(decoder.decode(Uint8Array.of(byte)), byte);
}
const questionMark = 63;

export function encodingOf(path: string, bytes: Uint8Array): Encoding {
  if (/\.(dlg|nls|ini)$/i.test(path)) {
    return "windows-1252";
  }
  try {
    new TextDecoder("utf-8", { fatal: true }).decode(bytes);
    return "utf-8";
  } catch {
    return "windows-1252";
  }
}

export function decode(bytes: Uint8Array, encoding: Encoding): string {
  return new TextDecoder(encoding, { ignoreBOM: true }).decode(bytes);
}

// A character without a byte becomes a question mark, as the library would have it.
export function encode(text: string, encoding: Encoding): Uint8Array {
  if (encoding === "utf-8") {
    return new TextEncoder().encode(text);
  }
  return Uint8Array.from(Array.from(text), (character) => byteOf.get(character) ?? questionMark);
}

export function hasByte(character: string): boolean {
  return byteOf.has(character);
}

// Bytes as a text with a character for each, and back.
export function packed(bytes: Uint8Array): string {
  return Array.from(bytes, (byte) => String.fromCharCode(byte)).join("");
}

export function unpacked(text: string): Uint8Array {
  return Uint8Array.from(text, (character) => character.charCodeAt(0));
}
