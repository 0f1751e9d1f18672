// What the engine takes and gives, as its README has it: the language server protocol, and the requests for a dialog.

export interface Position {
  line: number;
  character: number;
}

export interface Range {
  start: Position;
  end: Position;
}

export interface TextEdit {
  range: Range;
  newText: string;
}

export interface WorkspaceEdit {
  changes: Record<string, TextEdit[]>;
}

export interface Location {
  uri: string;
  range: Range;
}

export interface Finding {
  range: Range;
  severity: number;
  code: string;
  message: string;
}

export interface Mending {
  title: string;
  edit: WorkspaceEdit;
  isPreferred: boolean;
  diagnostics?: Finding[];
}

export interface Proposal {
  label: string;
  kind: number;
  detail?: string;
  textEdit: TextEdit;
  insertTextFormat?: number;
}

export interface Initialized {
  capabilities: { semanticTokensProvider: { legend: { tokenTypes: string[] } } };
}

export interface Area {
  x: number;
  y: number;
  width: number;
  height: number;
}

export interface Item {
  text: string;
  value?: string;
  marked?: boolean;
  // Of a tree.
  path?: string;
  level?: number;
  open?: boolean;
  hasInner?: boolean;
}

export interface Control {
  target: string;
  type: string;
  place: Area | null;
  inside: Area;
  field: Area | null;
  text: string;
  value: string | null;
  items: Item[];
  chosen: number;
  topItem: number;
  itemHeight: number;
  checked: boolean;
  enabled: boolean;
  shown: boolean;
  focus: boolean;
  default: boolean;
  tab: number;
  group: string | null;
  range: Range | null;
}

// Of its statement; nothing for a control of a window without a description.
export function lineOf(control: Control | undefined): number | undefined {
  return control?.range?.start.line;
}

export interface DialogWindow {
  kind: "dialog" | "window";
  uri?: string;
  title: string;
  width: number;
  height: number;
  client: Area;
  dpi: number;
  textHeight: number;
  scale?: { x: number; y: number };
  controls: Control[];
}

export interface Message {
  act: number;
  text: string;
}

export interface Play {
  outcome: "open" | "refused" | "confirmed" | "cancelled" | "not opened";
  result?: string;
  failure?: { number: string; message: string; line: number | null };
  failed?: { act: number; reason: string };
  messages: Message[];
  dialogs: DialogWindow[];
}

export interface Why {
  sentences: { text: string; range: Range | null }[];
  rules: {
    range: Range;
    word: string;
    holds: boolean;
    decides: boolean;
    conditions: { text: string; holds: boolean }[];
  }[];
}

export interface ScanStep {
  begin: number;
  end: number;
  next: number;
  statement: string;
  range: Range;
  follower: string;
  fills: { target: string; range: Range; text: string }[];
}

export interface ResultPiece {
  begin: number;
  end: number;
  target: string | null;
  range: Range;
}

export interface Way {
  input: string;
  steps: ScanStep[];
  rest: { begin: number; end: number } | null;
  result: string | null;
  rule: Range | null;
  pieces: ResultPiece[];
  refusals: { range: Range; text: string }[];
}

export interface CaseResult {
  name: string;
  uri: string;
  range: Range;
  passed: boolean;
  differences: { range: Range; expected: string; got: string }[];
  input: string;
  language: string;
  acts: string[];
}

// Each of these is played from its beginning.
export interface Trial {
  input: string;
  language: string;
  dpi: number;
  acts: string[];
}
