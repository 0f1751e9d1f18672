// What the engine explains, as elements: paragraphs, code, bold words, rules and lists.
import { make } from "../dom";

function inline(text: string): (Node | string)[] {
  return text.split(/(`[^`]+`|\*\*[^*]+\*\*)/).map((part) => {
    if (part.startsWith("`") && part.length > 2) {
      return make("code", {}, part.slice(1, -1));
    }
    return part.startsWith("**") && part.length > 4 ? make("b", {}, part.slice(2, -2)) : part;
  });
}

export function explained(text: string): HTMLElement {
  const whole = make("div", { class: "explained" });
  text.split(/```\w*\n([^]*?)```\n?/).forEach((part, index) => {
    if (index % 2 === 1) {
      whole.append(make("pre", {}, part.trimEnd()));
      return;
    }
    for (const paragraph of part.split(/\n{2,}/).map((each) => each.trim())) {
      if (paragraph === "---") {
        whole.append(make("hr"));
      } else if (paragraph !== "") {
        const lines = paragraph.split("\n").flatMap((line, at) => [...(at > 0 ? [make("br")] : []), ...inline(line.replace(/^[-*] /, "• "))]);
        whole.append(make("p", {}, ...lines));
      }
    }
  });
  return whole;
}
