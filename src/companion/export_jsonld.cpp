// The W3C's Web Annotation: an AnnotationPage beside the plain text that it is about.
#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "companion/export_folder.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

using Json = nlohmann::ordered_json;

// Characters of the text quoted on either side of a term.
constexpr Position kContext = 32;

struct Term {
  const char* name;
  const char* meaning;  // what it means, appended to kVocabulary
  std::size_t field;
};
constexpr const char* kVocabulary = "urn:quillorandix:tag#";
// Names that the standard's context uses (id, type, value) are replaced by others here.
constexpr std::array<Term, 11> kTerms = {{{"number", "id", TagField::kId},
                                          {"term", "term", TagField::kTerm},
                                          {"session", "session", TagField::kSessionId},
                                          {"user", "user", TagField::kUserId},
                                          {"class", "class", TagField::kClass},
                                          {"operator", "operator", TagField::kOperator},
                                          {"mode", "mode", TagField::kMode},
                                          {"relation", "type", TagField::kType},
                                          {"granularity", "granularity", TagField::kGranularity},
                                          {"tagValue", "value", TagField::kValue},
                                          {"referenceTerm", "ref_term", TagField::kRefTerm}}};

std::string PercentEncoded(const std::string& name) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
  constexpr const char* kHex = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : name) {
    if (kPlain.find(c) != std::string_view::npos) {
      encoded += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      encoded += {'%', kHex[byte / 16U], kHex[byte % 16U]};
    }
  }
  return encoded;
}

Json ContextTerms() {
  Json terms = Json::object();
  for (const Term& term : kTerms) terms[term.name] = std::string(kVocabulary) + term.meaning;
  return terms;
}

class Page {
 public:
  explicit Page(const TaggedText& text)
      : text_(text.text), lists_(text.lists), name_(PercentEncoded(NameOf(text.path))) {}

  // Composed annotation by annotation, so that only the result is in memory as a whole.
  std::string Bytes() const {
    const Json context = {"http://www.w3.org/ns/anno.jsonld", ContextTerms()};
    std::string bytes = "{\n\"@context\": " + context.dump() + ",\n\"id\": " + Json(Id()).dump() +
                        ",\n\"type\": \"AnnotationPage\",\n\"items\": [";
    const char* separator = "\n";
    for (std::size_t i = 0; i < lists_.size(); ++i) {
      const References references(lists_[i]);
      for (const Tag& tag : lists_[i].tags) {
        bytes.append(separator).append(Annotation(i, references, tag).dump());
        separator = ",\n";
      }
    }
    return bytes + "\n]\n}\n";
  }

 private:
  std::string Id() const { return name_ + ".jsonld"; }
  // Distinguishes lines of further lists from those of the first.
  std::string IdOf(std::size_t list, const Tag& tag) const {
    const std::string reader = list == 0 ? "" : "." + std::to_string(list + 1);
    return Id() + "#L" + std::to_string(tag.line) + reader;
  }

  Json Annotation(std::size_t list, const References& references, const Tag& tag) const {
    Json bodies = Json::array();
    if (Json description = Description(tag); !description.empty()) bodies.push_back(description);
    if (const auto target = references.TargetOf(tag)) {
      bodies.push_back({{"type", "SpecificResource"},
                        {"purpose", "linking"},
                        {"source", IdOf(list, lists_[list].tags[*target])}});
    }
    return {{"id", IdOf(list, tag)},
            {"type", "Annotation"},
            {"motivation", "tagging"},
            {"body", bodies},
            {"target",
             {{"type", "SpecificResource"},
              {"source", name_ + ".txt"},
              {"selector", Json::array({PositionSelector(tag), QuoteSelector(tag)})}}}};
  }

  static Json Description(const Tag& tag) {
    Json body = Json::object();
    for (const Term& term : kTerms) {
      const std::u32string_view value = Given(tag, term.field);
      if (!value.empty()) body[term.name] = ToUtf8(value);
    }
    return body;
  }

  static Json PositionSelector(const Tag& tag) {
    return {{"type", "TextPositionSelector"}, {"start", tag.span.begin}, {"end", tag.span.end}};
  }

  Json QuoteSelector(const Tag& tag) const {
    const Range before{std::max<Position>(tag.span.begin - kContext, 0), tag.span.begin};
    const Range behind{tag.span.end, std::min(tag.span.end + kContext, text_.Length())};
    return {{"type", "TextQuoteSelector"},
            {"exact", ToUtf8(text_.At(tag.span))},
            {"prefix", ToUtf8(text_.At(before))},
            {"suffix", ToUtf8(text_.At(behind))}};
  }

  const Text& text_;
  const std::vector<TagList>& lists_;
  std::string name_;
};

}  // namespace

void ExportJsonLd(const Options& options, Console& console) {
  FolderFormat format;
  format.endings = {".jsonld", ".txt"};
  format.write = [](const TaggedText& text, Console& /*unused*/) {
    const std::string name = NameOf(text.path);
    return std::vector<NamedFile>{{name + ".txt", ToUtf8(text.text.characters)},
                                  {name + ".jsonld", Page(text).Bytes()}};
  };
  ExportToFolder(format, options, console);
}

}  // namespace quill::companion
