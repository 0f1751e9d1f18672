// Between places of the protocol, which are lines and characters, and places of the editor.
import type { ChangeSpec, Text } from "@codemirror/state";
import type { Position, Range, TextEdit } from "./contract";

export function offsetOf(doc: Text, place: Position): number {
  const line = doc.line(Math.min(Math.max(place.line + 1, 1), doc.lines));
  return Math.min(line.from + place.character, place.line + 1 > doc.lines ? doc.length : line.to);
}

export function positionOf(doc: Text, offset: number): Position {
  const line = doc.lineAt(offset);
  return { line: line.number - 1, character: offset - line.from };
}

export function spanOf(doc: Text, range: Range): { from: number; to: number } {
  return { from: offsetOf(doc, range.start), to: offsetOf(doc, range.end) };
}

export function changesOf(doc: Text, edits: TextEdit[]): ChangeSpec[] {
  return edits.map((edit) => ({ ...spanOf(doc, edit.range), insert: edit.newText }));
}
