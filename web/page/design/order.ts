// The order of the Tab key: a number that is dragged onto another takes its place. A label goes with what it labels.
import { lineOf, type Control } from "../engine/contract";

// The lines of the statements in their new order.
export function reordered(controls: Control[], from: string, to: string): (number | undefined)[] | undefined {
  const units: Control[][] = [];
  for (const control of controls) {
    const last = units.at(-1)?.at(-1);
    if (last?.type === "Text" && control.type !== "Text" && control.type !== "GroupBox") {
      units.at(-1)?.push(control);
    } else {
      units.push([control]);
    }
  }
  const at = (target: string) => units.findIndex((unit) => unit.some((control) => control.target === target));
  const source = at(from);
  const goal = at(to);
  if (source < 0 || goal < 0 || source === goal) {
    return undefined;
  }
  const [unit] = units.splice(source, 1);
  units.splice(goal, 0, unit!);
  return units.flat().map(lineOf);
}
