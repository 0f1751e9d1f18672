// Places of controls: what a drag comes to with its grid and its guides, and how several are brought into line.
import type { Area } from "../engine/contract";

export const grid = 4;
const pull = 4;

export interface Guide {
  isUpright: boolean;
  at: number;
}

function middle(begin: number, size: number): number {
  return begin + Math.round(size / 2);
}

const upright = (area: Area) => [area.x, middle(area.x, area.width), area.x + area.width];
const level = (area: Area) => [area.y, middle(area.y, area.height), area.y + area.height];

// The least way that brings one of the lines onto one of the others.
function nearest(lines: number[], others: number[]): { by: number; at: number } | undefined {
  const ways = lines.flatMap((line) => others.map((at) => ({ by: at - line, at })));
  return ways.filter(({ by }) => Math.abs(by) <= pull).sort((one, two) => Math.abs(one.by) - Math.abs(two.by))[0];
}

function onGrid(value: number): number {
  return Math.round(value / grid) * grid;
}

// Onto a neighbour's line where one is near, else onto the grid.
export function moved(area: Area, dx: number, dy: number, neighbours: Area[]): { area: Area; guides: Guide[] } {
  const wanted = { ...area, x: area.x + dx, y: area.y + dy };
  const across = dx === 0 ? undefined : nearest(upright(wanted), neighbours.flatMap(upright));
  const down = dy === 0 ? undefined : nearest(level(wanted), neighbours.flatMap(level));
  const x = dx === 0 ? area.x : across ? wanted.x + across.by : onGrid(wanted.x);
  const y = dy === 0 ? area.y : down ? wanted.y + down.by : onGrid(wanted.y);
  const guides: Guide[] = [];
  if (across) {
    guides.push({ isUpright: true, at: across.at });
  }
  if (down) {
    guides.push({ isUpright: false, at: down.at });
  }
  return { area: { ...wanted, x, y }, guides };
}

export function sized(area: Area, dx: number, dy: number, neighbours: Area[]): { area: Area; guides: Guide[] } {
  const right = area.x + area.width + dx;
  const bottom = area.y + area.height + dy;
  const across = dx === 0 ? undefined : nearest([right], neighbours.flatMap((each) => [each.x, each.x + each.width]));
  const down = dy === 0 ? undefined : nearest([bottom], neighbours.flatMap((each) => [each.y, each.y + each.height]));
  const like = neighbours.find((each) => Math.abs(each.width - (area.width + dx)) <= 2);
  const width = dx === 0 ? area.width : across ? across.at - area.x : like ? like.width : onGrid(right) - area.x;
  const height = dy === 0 ? area.height : down ? down.at - area.y : onGrid(bottom) - area.y;
  const guides: Guide[] = [];
  if (across) {
    guides.push({ isUpright: true, at: across.at });
  }
  if (down) {
    guides.push({ isUpright: false, at: down.at });
  }
  return { area: { ...area, width: Math.max(grid, width), height: Math.max(grid, height) }, guides };
}

// By their names of two words. The others follow the first.
export const arrangements: Record<string, (areas: Area[]) => Area[]> = {
  "Align left": ([first, ...rest]) => [first!, ...rest.map((area) => ({ ...area, x: first!.x }))],
  "Align right": ([first, ...rest]) => [first!, ...rest.map((area) => ({ ...area, x: first!.x + first!.width - area.width }))],
  "Align top": ([first, ...rest]) => [first!, ...rest.map((area) => ({ ...area, y: first!.y }))],
  "Align bottom": ([first, ...rest]) => [first!, ...rest.map((area) => ({ ...area, y: first!.y + first!.height - area.height }))],
  "Equal widths": ([first, ...rest]) => [first!, ...rest.map((area) => ({ ...area, width: first!.width }))],
  "Distribute across": (areas) => distributed(areas, "x", "width"),
  "Distribute down": (areas) => distributed(areas, "y", "height"),
};

// The same gaps between all; the outermost stay.
function distributed(areas: Area[], begin: "x" | "y", size: "width" | "height"): Area[] {
  const order = areas.map((_, index) => index).sort((one, two) => areas[one]![begin] - areas[two]![begin]);
  const first = areas[order[0]!]!;
  const last = areas[order.at(-1)!]!;
  const filled = areas.reduce((sum, area) => sum + area[size], 0);
  const gap = (last[begin] + last[size] - first[begin] - filled) / Math.max(1, areas.length - 1);
  const result = [...areas];
  let place = first[begin];
  for (const index of order) {
    const area = areas[index]!;
    result[index] = { ...area, [begin]: Math.round(place) };
    place += area[size] + gap;
  }
  return result;
}
