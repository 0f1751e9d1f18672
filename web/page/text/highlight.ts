// Colours: comments, texts, numbers and headers as they are written; names by what the engine knows of them.
import { HighlightStyle, StreamLanguage, syntaxHighlighting, type StringStream } from "@codemirror/language";
import { RangeSetBuilder, StateEffect, StateField, type Extension, type Text } from "@codemirror/state";
import { Decoration, EditorView, type DecorationSet } from "@codemirror/view";
import { tags } from "@lezer/highlight";

function descriptionToken(stream: StringStream): string | null {
  if (stream.sol() && stream.match(/^[<>].*/)) {
    return "meta";
  }
  if (stream.match(/^\$[A-Z]+/)) {
    return "heading";
  }
  if (stream.match(/^;.*/)) {
    return "comment";
  }
  if (stream.match(/^"(\\.|[^"\\])*"?/)) {
    return "string";
  }
  if (stream.match(/^\d+\b/)) {
    return "number";
  }
  if (!stream.match(/^\.?\w+/)) {
    stream.next();
  }
  return null;
}

function textsToken(stream: StringStream): string | null {
  if (stream.sol() && stream.match(/^\s*;.*/)) {
    return "comment";
  }
  if (stream.sol() && stream.match(/^\s*\[.*/)) {
    return "heading";
  }
  if (stream.sol() && stream.match(/^[^=]+(?==)/)) {
    return "propertyName";
  }
  stream.skipToEnd();
  return null;
}

function casesToken(stream: StringStream): string | null {
  if (stream.sol() && stream.match(/^\s*#.*/)) {
    return "comment";
  }
  if (stream.sol() && stream.match(/^\w+:/)) {
    return "heading";
  }
  if (stream.sol() && stream.match(/^\w+/)) {
    return "propertyName";
  }
  if (stream.match(/^"(\\.|[^"\\])*"?/)) {
    return "string";
  }
  stream.next();
  return null;
}

const colours = HighlightStyle.define([
  { tag: tags.comment, class: "tok-comment" },
  { tag: tags.string, class: "tok-string" },
  { tag: tags.number, class: "tok-number" },
  { tag: tags.heading, class: "tok-heading" },
  { tag: tags.propertyName, class: "tok-type" },
  { tag: tags.meta, class: "tok-meta" },
]);

export function highlighting(kind: "dlg" | "nls" | "other"): Extension {
  const token = { dlg: descriptionToken, nls: textsToken, other: casesToken }[kind];
  return [StreamLanguage.define({ token, languageData: { commentTokens: { line: kind === "other" ? "#" : ";" } } }), syntaxHighlighting(colours)];
}

// A mark for each kind of name, in the order in which the engine numbers them.
export function marksOf(kinds: string[]): Decoration[] {
  return kinds.map((kind) => Decoration.mark({ class: `tok-${kind}` }));
}

const setNames = StateEffect.define<DecorationSet>();

export const names = StateField.define<DecorationSet>({
  create: () => Decoration.none,
  update(shown, change) {
    const set = change.effects.find((effect) => effect.is(setNames));
    return set?.is(setNames) ? set.value : shown.map(change.changes);
  },
  provide: (field) => EditorView.decorations.from(field),
});

// As the protocol has them: five numbers for each, relative to the one before.
export function namesEffect(doc: Text, marks: Decoration[], numbers: number[]): StateEffect<DecorationSet> {
  const builder = new RangeSetBuilder<Decoration>();
  let line = 0;
  let column = 0;
  for (let at = 0; at + 4 < numbers.length; at += 5) {
    const [lines = 0, columns = 0, length = 0, kind = 0] = numbers.slice(at, at + 4);
    column = lines > 0 ? columns : column + columns;
    line += lines;
    const mark = marks[kind];
    if (line < doc.lines && mark && length > 0) {
      const from = doc.line(line + 1).from + column;
      builder.add(from, Math.min(from + length, doc.length), mark);
    }
  }
  return setNames.of(builder.finish());
}
