// UIMA's exchange format, as INCEpTION and DKPro read it: the text and its annotations in one XML
// file, positions in UTF-16 units, and the types of the annotations in another.
#include <algorithm>
#include <array>
#include <iomanip>
#include <pugixml.hpp>
#include <sstream>

#include "companion/export_folder.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

constexpr const char* kType = "quillorandix.TemporalOperator";
constexpr const char* kString = "uima.cas.String";
constexpr int kSofa = 1;
constexpr int kDocument = 2;
constexpr int kFirstTag = 3;

struct Feature {
  const char* name;
  std::size_t field;
};
constexpr std::array<Feature, 9> kStrings = {{{"session", TagField::kSessionId},
                                              {"user", TagField::kUserId},
                                              {"operatorClass", TagField::kClass},
                                              {"kind", TagField::kOperator},
                                              {"mode", TagField::kMode},
                                              {"relation", TagField::kType},
                                              {"granularity", TagField::kGranularity},
                                              {"value", TagField::kValue},
                                              {"referenceTerm", TagField::kRefTerm}}};

std::string BytesOf(const pugi::xml_document& document) {
  std::ostringstream bytes;
  document.save(bytes, "", pugi::format_indent);
  return std::move(bytes).str();
}

void AddFeature(pugi::xml_node features, const char* name, const char* type) {
  pugi::xml_node feature = features.append_child("featureDescription");
  feature.append_child("name").text() = name;
  feature.append_child("description");
  feature.append_child("rangeTypeName").text() = type;
}

std::string TypeSystem() {
  pugi::xml_document document;
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  pugi::xml_node system = document.append_child("typeSystemDescription");
  system.append_attribute("xmlns") = "http://uima.apache.org/resourceSpecifier";
  system.append_child("name").text() = "quillorandix";
  pugi::xml_node type = system.append_child("types").append_child("typeDescription");
  type.append_child("name").text() = kType;
  type.append_child("description").text() =
      "A word or phrase that tells time, as a reader tagged it.";
  type.append_child("supertypeName").text() = "uima.tcas.Annotation";
  pugi::xml_node features = type.append_child("features");
  AddFeature(features, "number", "uima.cas.Integer");
  for (const Feature& feature : kStrings) AddFeature(features, feature.name, kString);
  AddFeature(features, "reference", kType);
  return BytesOf(document);
}

// Whether an XML 1.0 document may hold the character.
bool IsXmlCharacter(char32_t c) {
  if (c < 0x20) return c == U'\t' || c == U'\n' || c == U'\r';
  return c != 0xFFFE && c != 0xFFFF;
}

std::u32string XmlText(std::u32string_view text) {
  std::u32string allowed(text);
  std::replace_if(
      allowed.begin(), allowed.end(), [](char32_t c) { return !IsXmlCharacter(c); }, kReplacement);
  return allowed;
}

std::string XmlAttribute(std::u32string_view text) { return ToUtf8(XmlText(text)); }

// Positions of a text as positions in its UTF-16 form.
class Utf16Positions {
 public:
  explicit Utf16Positions(std::u32string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] > 0xFFFF) pairs_.push_back(static_cast<Position>(i));
    }
  }
  Position Of(Position at) const {
    return at + (std::lower_bound(pairs_.begin(), pairs_.end(), at) - pairs_.begin());
  }

 private:
  std::vector<Position> pairs_;  // the places of characters of two units
};

class Cas {
 public:
  explicit Cas(const TaggedText& text)
      : text_(text.text), lists_(text.lists), positions_(text.text.characters) {}

  std::string Bytes() {
    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    root_ = document.append_child("xmi:XMI");
    root_.append_attribute("xmlns:xmi") = "http://www.omg.org/XMI";
    root_.append_attribute("xmlns:cas") = "http:///uima/cas.ecore";
    root_.append_attribute("xmlns:tcas") = "http:///uima/tcas.ecore";
    root_.append_attribute("xmlns:quillorandix") = "http:///quillorandix.ecore";
    root_.append_attribute("xmi:version") = "2.0";
    root_.append_child("cas:NULL").append_attribute("xmi:id") = 0;
    pugi::xml_node whole = AddAnnotation("tcas:DocumentAnnotation", kDocument, {0, text_.Length()});
    whole.append_attribute("language") = "x-unspecified";
    AddTags();
    AddSofa();
    return BytesOf(document);
  }

 private:
  pugi::xml_node AddAnnotation(const char* type, std::size_t id, Range range) {
    pugi::xml_node node = root_.append_child(type);
    node.append_attribute("xmi:id") = id;
    node.append_attribute("sofa") = kSofa;
    node.append_attribute("begin") = positions_.Of(range.begin);
    node.append_attribute("end") = positions_.Of(range.end);
    if (!members_.empty()) members_ += ' ';
    members_ += std::to_string(id);
    return node;
  }

  void AddTags() {
    std::size_t first = kFirstTag;
    for (const TagList& list : lists_) {
      const References references(list);
      for (std::size_t i = 0; i < list.tags.size(); ++i) {
        pugi::xml_node node =
            AddAnnotation("quillorandix:TemporalOperator", first + i, list.tags[i].span);
        AddFields(node, list.tags[i]);
        if (const auto target = references.TargetOf(list.tags[i])) {
          node.append_attribute("reference") = first + *target;
        }
      }
      first += list.tags.size();
    }
  }

  static void AddFields(pugi::xml_node node, const Tag& tag) {
    constexpr Position kLargestInteger = 0x7FFFFFFF;
    const std::optional<Position> number = WholeNumber(tag.fields[TagField::kId]);
    if (number && *number <= kLargestInteger) node.append_attribute("number") = *number;
    for (const Feature& feature : kStrings) {
      const std::u32string_view value = Given(tag, feature.field);
      if (!value.empty()) node.append_attribute(feature.name) = XmlAttribute(value).c_str();
    }
  }

  void AddSofa() {
    pugi::xml_node sofa = root_.append_child("cas:Sofa");
    sofa.append_attribute("xmi:id") = kSofa;
    sofa.append_attribute("sofaNum") = 1;
    sofa.append_attribute("sofaID") = "_InitialView";
    sofa.append_attribute("mimeType") = "text/plain";
    sofa.append_attribute("sofaString") = XmlAttribute(text_.characters).c_str();
    pugi::xml_node view = root_.append_child("cas:View");
    view.append_attribute("sofa") = kSofa;
    view.append_attribute("members") = members_.c_str();
  }

  const Text& text_;
  const std::vector<TagList>& lists_;
  Utf16Positions positions_;
  pugi::xml_node root_;
  std::string members_;
};

std::string CodePoint(char32_t c) {
  std::ostringstream name;
  name << "U+" << std::uppercase << std::hex << std::setw(4) << std::setfill('0')
       << static_cast<unsigned>(c);
  return name.str();
}

void TellReplaced(const TaggedText& text, Console& console) {
  const std::u32string& characters = text.text.characters;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    if (IsXmlCharacter(characters[i])) continue;
    console.Remark(text.path + ": character " + std::to_string(i + 1) + ", " +
                   CodePoint(characters[i]) + ", is U+FFFD in XML, which cannot hold it");
  }
}

}  // namespace

void ExportXmi(const Options& options, Console& console) {
  FolderFormat format;
  format.endings = {".xmi"};
  format.common = {{"TypeSystem.xml", TypeSystem()}};
  format.write = [](const TaggedText& text, Console& remarks) {
    TellReplaced(text, remarks);
    return std::vector<NamedFile>{{NameOf(text.path) + ".xmi", Cas(text).Bytes()}};
  };
  ExportToFolder(format, options, console);
}

}  // namespace quill::companion
