// build.mjs ENGINE OUT: makes one page of everything: scripts, styles, the engine and the samples. ENGINE is the folder with
// lytengine.mjs and lytengine.wasm.
import { build } from "esbuild";
import { createHash } from "node:crypto";
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";

const here = path.dirname(fileURLToPath(import.meta.url));
const [engine, out] = process.argv.slice(2);
const parts = ["dialog", "text", "why", "way", "cases", "design"];

// Folders of the packages that the page is made of; nothing for a file that is not from a package.
const inside = new Set();

async function bundle(entry) {
  const built = await build({
    entryPoints: [path.join(here, entry)],
    bundle: true,
    minify: true,
    write: false,
    metafile: true,
    format: "iife",
    target: "chrome109",
    logLevel: "warning",
    // The engine's module looks from there for what the page gives it.
    define: { "import.meta.url": '"file:///"' },
    external: ["module", "fs", "path", "url"],
    alias: { lytengine: path.resolve(engine, "lytengine.mjs") },
  });
  Object.keys(built.metafile.inputs).forEach((input) => inside.add(/^.*node_modules\/(?:@[^/]+\/)?[^/]+/.exec(input)?.[0]));
  return built.outputFiles[0].text;
}

// By path below the folder of the samples, a character for each byte.
function samples() {
  const folder = path.join(here, "../../samples");
  const names = ["dialogs", "cases", "init"].flatMap((part) => fs.readdirSync(path.join(folder, part), { recursive: true }).map((name) => path.join(part, name)));
  const texts = names.filter((name) => fs.statSync(path.join(folder, name)).isFile()).sort();
  return Object.fromEntries(texts.map((name) => [name, fs.readFileSync(path.join(folder, name), "latin1")]));
}

// What the sample libraries give out, by their names beside the program.
function partners() {
  return Object.fromEntries(["lytdata", "lytsrc"].map((name) => [`${name}.txt`, fs.readFileSync(path.join(here, `../../samples/${name}/${name}.txt`), "latin1")]));
}

// The terms of all that the page is made of. Parts of the engine are from packages of Debian, which have theirs in one place.
function terms() {
  const packages = [...inside].filter((folder) => folder).sort();
  const texts = packages.map((folder) => {
    const { name, version } = JSON.parse(fs.readFileSync(path.join(folder, "package.json"), "utf8"));
    return `${name} ${version}\n\n${fs.readFileSync(path.join(folder, "LICENSE"), "utf8")}`;
  });
  const debian = ["emscripten", "nlohmann-json3-dev"].map((name) => `${name}\n\n${fs.readFileSync(`/usr/share/doc/${name}/copyright`, "utf8")}`);
  return [...texts, ...debian].join("\n\n");
}

const hash = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;
// What ends a script in a page must not appear in one.
const asJson = (value) => JSON.stringify(value).replaceAll("<", "\\u003c");

const script = (await bundle("main.ts")).replaceAll("</script", "<\\/script");
const styles = ["base.css", ...parts.map((part) => `${part}/${part}.css`)].map((file) => fs.readFileSync(path.join(here, file), "utf8")).join("\n");
const policy = [
  "default-src 'none'",
  `script-src ${hash(script)} 'wasm-unsafe-eval' blob:`,
  "worker-src blob:",
  `style-src 'unsafe-inline'`,
  "img-src data:",
  "form-action 'none'",
  "base-uri 'none'",
].join("; ");
const fields = {
  policy,
  styles,
  script,
  module: gzipSync(fs.readFileSync(path.join(engine, "lytengine.wasm")), { level: 9 }).toString("base64"),
  thread: asJson(await bundle("engine/thread.ts")),
  samples: asJson(samples()),
  partners: asJson(partners()),
  terms: terms().replaceAll("</script", "<\\/script"),
};
const page = fs.readFileSync(path.join(here, "index.html"), "utf8").replace(/@(\w+)@/g, (_, name) => fields[name]);
fs.mkdirSync(path.dirname(out), { recursive: true });
fs.writeFileSync(out, page);
console.log(`${out}: ${(page.length / 1e6).toFixed(2)} MB`);
