// Keeps the line ends of a file as they are while it is edited. Most lines end alike; each line that ends otherwise carries a
// mark, which moves with the text.
import { MapMode, RangeSet, RangeSetBuilder, RangeValue, StateField, type EditorState, type Extension } from "@codemirror/state";

class LineEnd extends RangeValue {
  override mapMode = MapMode.TrackDel;
  constructor(readonly text: string) {
    super();
  }
  override eq(other: LineEnd): boolean {
    return other.text === this.text;
  }
}

interface LineEnds {
  usual: string;
  others: RangeSet<LineEnd>;
}

const lineEnds = StateField.define<LineEnds>({
  create: () => ({ usual: "\r\n", others: RangeSet.empty }),
  update: (ends, change) => (change.docChanged ? { usual: ends.usual, others: ends.others.map(change.changes) } : ends),
});

// Of a text whose ends are still in it.
export function lineEndsOf(text: string): Extension {
  const ends = text.match(/\r\n|\r|\n/g) ?? [];
  const count = (kind: string) => ends.filter((end) => end === kind).length;
  const usual = ends.length === 0 || count("\r\n") >= count("\n") ? "\r\n" : "\n";
  const others = new RangeSetBuilder<LineEnd>();
  let place = 0;
  for (const [index, line] of text.split(/\r\n|\r|\n/).entries()) {
    place += line.length;
    const end = ends[index];
    if (end !== undefined && end !== usual) {
      others.add(place, place + 1, new LineEnd(end));
    }
    ++place;
  }
  return lineEnds.init(() => ({ usual, others: others.finish() }));
}

export function withLineEnds(state: EditorState): string {
  const { usual, others } = state.field(lineEnds);
  const text = state.doc.toString();
  let whole = "";
  let done = 0;
  for (const mark = others.iter(); mark.value; mark.next()) {
    whole += text.slice(done, mark.from).replaceAll("\n", usual) + mark.value.text;
    done = mark.from + 1;
  }
  return whole + text.slice(done).replaceAll("\n", usual);
}
