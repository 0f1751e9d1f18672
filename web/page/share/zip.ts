// Files as a zip. Each is packed by the browser's own deflate.

interface Entry {
  name: Uint8Array;
  packed: Uint8Array;
  size: number;
  sum: number;
  offset: number;
}

const sums = Uint32Array.from({ length: 256 }, (_, byte) => {
  let sum = byte;
  for (let bit = 0; bit < 8; ++bit) {
    sum = sum & 1 ? (sum >>> 1) ^ 0xedb88320 : sum >>> 1;
  }
  return sum;
});

function checksum(bytes: Uint8Array): number {
  let sum = 0xffffffff;
  for (const byte of bytes) {
    sum = (sums[(sum ^ byte) & 0xff] ?? 0) ^ (sum >>> 8);
  }
  return ~sum >>> 0;
}

export async function through(bytes: Uint8Array, stream: CompressionStream | DecompressionStream): Promise<Uint8Array> {
  const source = new Blob([bytes as Uint8Array<ArrayBuffer>]).stream().pipeThrough(stream);
  return new Uint8Array(await new Response(source).arrayBuffer());
}

// Fields of two or four bytes, given as [size, value].
function record(...fields: [2 | 4, number][]): Uint8Array {
  const bytes = new Uint8Array(fields.reduce((sum, [size]) => sum + size, 0));
  const view = new DataView(bytes.buffer);
  let place = 0;
  for (const [size, value] of fields) {
    size === 2 ? view.setUint16(place, value, true) : view.setUint32(place, value, true);
    place += size;
  }
  return bytes;
}

// The first of January 1980, the earliest that a zip can have: the same files give the same bytes.
const firstDay = 0x21;
const withUtf8Name = 0x800;
const deflated = 8;

function commonFields(entry: Entry): [2 | 4, number][] {
  return [
    [2, 20], [2, withUtf8Name], [2, deflated], [2, 0], [2, firstDay], [4, entry.sum],
    [4, entry.packed.length], [4, entry.size], [2, entry.name.length], [2, 0],
  ];
}

export async function zipOf(files: { path: string; bytes: Uint8Array }[]): Promise<Uint8Array> {
  const parts: Uint8Array[] = [];
  const entries: Entry[] = [];
  let offset = 0;
  const add = (bytes: Uint8Array) => {
    parts.push(bytes);
    offset += bytes.length;
  };
  for (const { path, bytes } of files) {
    const packed = await through(bytes, new CompressionStream("deflate-raw"));
    const entry = { name: new TextEncoder().encode(path), packed, size: bytes.length, sum: checksum(bytes), offset };
    entries.push(entry);
    add(record([4, 0x04034b50], ...commonFields(entry)));
    add(entry.name);
    add(packed);
  }
  const begin = offset;
  for (const entry of entries) {
    add(record([4, 0x02014b50], [2, 20], ...commonFields(entry), [2, 0], [2, 0], [2, 0], [4, 0], [4, entry.offset]));
    add(entry.name);
  }
  const count = entries.length;
  const size = offset - begin;
  add(record([4, 0x06054b50], [2, 0], [2, 0], [2, count], [2, count], [4, size], [4, begin], [2, 0]));
  return new Uint8Array(await new Blob(parts as Uint8Array<ArrayBuffer>[]).arrayBuffer());
}
