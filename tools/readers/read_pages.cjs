// read_pages.cjs PAGE...: tells, as JSON, what jsonld and the selectors of Apache Annotator read from
// files of `quilltags export --to jsonld`.
const fs = require("fs");
const path = require("path");
const jsonld = require("jsonld");

const OA = "http://www.w3.org/ns/oa#";
const TAG = "urn:quillorandix:tag#";

// What of the standard's context the pages use; nothing is fetched.
const iri = (name) => ({ "@id": OA + name, "@type": "@id" });
const CONTEXT = {
  id: { "@type": "@id", "@id": "@id" },
  type: { "@type": "@id", "@id": "@type" },
  as: "http://www.w3.org/ns/activitystreams#",
  AnnotationPage: "as:OrderedCollectionPage",
  Annotation: OA + "Annotation",
  SpecificResource: OA + "SpecificResource",
  TextPositionSelector: OA + "TextPositionSelector",
  TextQuoteSelector: OA + "TextQuoteSelector",
  linking: OA + "linking",
  tagging: OA + "tagging",
  items: { "@type": "@id", "@id": "as:items", "@container": "@list" },
  body: iri("hasBody"),
  target: iri("hasTarget"),
  source: iri("hasSource"),
  selector: iri("hasSelector"),
  purpose: { "@type": "@vocab", "@id": OA + "hasPurpose" },
  motivation: { "@type": "@vocab", "@id": OA + "motivatedBy" },
  start: OA + "start",
  end: OA + "end",
  exact: OA + "exact",
  prefix: OA + "prefix",
  suffix: OA + "suffix",
};

async function documentLoader(url) {
  if (url !== "http://www.w3.org/ns/anno.jsonld") throw new Error("not to be fetched: " + url);
  return { contextUrl: null, documentUrl: url, document: { "@context": CONTEXT } };
}

const value = (node, name) => node[OA + name]?.[0]["@value"];
const BASE = "https://example.org/";

// The parts of the text that a matcher finds.
async function found(matcher, text) {
  const chunk = { data: text };
  const chunker = {
    currentChunk: chunk,
    nextChunk: () => null,
    previousChunk: () => null,
    precedesCurrentChunk: () => false,
  };
  const parts = [];
  for await (const range of matcher(chunker)) {
    parts.push(text.slice(range.startIndex, range.endIndex));
  }
  return parts;
}

async function readAnnotation(node, text, selectors) {
  const target = node[OA + "hasTarget"][0];
  const [position, quote] = target[OA + "hasSelector"];
  const bodies = node[OA + "hasBody"] ?? [];
  const fields = {};
  let reference = null;
  for (const body of bodies) {
    if (body[OA + "hasPurpose"]) reference = body[OA + "hasSource"][0]["@id"].slice(BASE.length);
    for (const [name, values] of Object.entries(body)) {
      if (name.startsWith(TAG)) fields[name.slice(TAG.length)] = values[0]["@value"];
    }
  }
  const place = { start: value(position, "start"), end: value(position, "end") };
  const words = { exact: value(quote, "exact"), prefix: value(quote, "prefix"), suffix: value(quote, "suffix") };
  return {
    fields,
    reference,
    positions: await found(selectors.textPositionSelectorMatcher(place), text),
    quotes: await found(selectors.textQuoteSelectorMatcher(words), text),
  };
}

async function readPage(file, selectors) {
  const page = JSON.parse(fs.readFileSync(file, "utf8"));
  const [expanded] = await jsonld.expand(page, { documentLoader, base: BASE });
  const items = expanded["http://www.w3.org/ns/activitystreams#items"][0]["@list"];
  const text = fs.readFileSync(path.join(path.dirname(file), page.id.replace(/jsonld$/, "txt")), "utf8");
  const annotations = [];
  for (const node of items) annotations.push(await readAnnotation(node, text, selectors));
  return annotations;
}

async function main() {
  const folder = path.dirname(require.resolve("jsonld/package.json"));
  const selectors = await import(path.join(folder, "../@apache-annotator/selector/lib/index.js"));
  const pages = [];
  for (const file of process.argv.slice(2)) pages.push(await readPage(file, selectors));
  console.log(JSON.stringify(pages));
}

main();
