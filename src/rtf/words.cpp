#include "rtf/words.h"

#include <array>
#include <cstddef>
#include <vector>

#include "text/format.h"

namespace quill::rtf {
namespace {

constexpr std::int32_t Number(Alignment alignment) { return static_cast<std::int32_t>(alignment); }

constexpr WordEntry kWords[] = {
    // Headers.
    {"rtf", Word::kHeader},
    {"ansi", Word::kCharacterSet, 1252},
    {"mac", Word::kCharacterSet, 10000},
    {"pc", Word::kCharacterSet, 437},
    {"pca", Word::kCharacterSet, 850},
    {"ansicpg", Word::kAnsiCodePage},
    {"deff", Word::kDefaultFont},
    {"adeff", Word::kHeader},
    {"deflang", Word::kHeader},
    {"deflangfe", Word::kHeader},
    {"adeflang", Word::kHeader},
    {"stshfdbch", Word::kHeader},
    {"stshfloch", Word::kHeader},
    {"stshfhich", Word::kHeader},
    {"stshfbi", Word::kHeader},
    {"themelang", Word::kHeader},
    {"themelangfe", Word::kHeader},
    {"themelangcs", Word::kHeader},
    {"fbidis", Word::kHeader},
    {"cocoartf", Word::kHeader},
    {"cocoasubrtf", Word::kHeader},
    {"cocoatextscaling", Word::kHeader},
    {"cocoaplatform", Word::kHeader},
    {"uc", Word::kFallback},

    // Characters.
    {"par", Word::kParagraph},
    {"sect", Word::kParagraph},
    {"page", Word::kParagraph},
    {"column", Word::kParagraph},
    {"row", Word::kRow},
    {"nestrow", Word::kRow},
    {"cell", Word::kCell},
    {"nestcell", Word::kCell},
    {"line", Word::kCharacter, 0x2028},
    {"lbr", Word::kCharacter, 0x2028},
    {"tab", Word::kCharacter, '\t'},
    {"u", Word::kUnicode},
    {"bullet", Word::kCharacter, 0x2022},
    {"emdash", Word::kCharacter, 0x2014},
    {"endash", Word::kCharacter, 0x2013},
    {"lquote", Word::kCharacter, 0x2018},
    {"rquote", Word::kCharacter, 0x2019},
    {"ldblquote", Word::kCharacter, 0x201C},
    {"rdblquote", Word::kCharacter, 0x201D},
    {"enspace", Word::kCharacter, 0x2002},
    {"emspace", Word::kCharacter, 0x2003},
    {"qmspace", Word::kCharacter, 0x2005},
    {"zwj", Word::kCharacter, 0x200D},
    {"zwnj", Word::kCharacter, 0x200C},
    {"zwbo", Word::kCharacter, 0x200B},
    {"zwnbo", Word::kCharacter, 0x2060},
    {"ltrmark", Word::kCharacter, 0x200E},
    {"rtlmark", Word::kCharacter, 0x200F},

    // Groups.
    {"fonttbl", Word::kFontTable},
    {"colortbl", Word::kColourTable},
    {"expandedcolortbl", Word::kExpandedColourTable},
    {"pict", Word::kObject},
    {"object", Word::kObject},
    {"shppict", Word::kPictureForm, 1},
    {"nonshppict", Word::kPictureForm, 2},
    {"upr", Word::kAlternatives},
    {"ud", Word::kTransparent},
    {"field", Word::kTransparent},
    {"fldrslt", Word::kTransparent},
    {"nesttableprops", Word::kTransparent},
    {"stylesheet", Word::kSkipped},
    {"info", Word::kSkipped},
    {"fldinst", Word::kSkipped},
    {"datafield", Word::kSkipped},
    {"formfield", Word::kSkipped},
    {"footnote", Word::kSkipped},
    {"header", Word::kSkipped},
    {"headerl", Word::kSkipped},
    {"headerr", Word::kSkipped},
    {"headerf", Word::kSkipped},
    {"footer", Word::kSkipped},
    {"footerl", Word::kSkipped},
    {"footerr", Word::kSkipped},
    {"footerf", Word::kSkipped},
    {"ftnsep", Word::kSkipped},
    {"ftnsepc", Word::kSkipped},
    {"ftncn", Word::kSkipped},
    {"aftnsep", Word::kSkipped},
    {"aftnsepc", Word::kSkipped},
    {"aftncn", Word::kSkipped},
    {"annotation", Word::kSkipped},
    {"atnid", Word::kSkipped},
    {"atnauthor", Word::kSkipped},
    {"atntime", Word::kSkipped},
    {"atndate", Word::kSkipped},
    {"atnicn", Word::kSkipped},
    {"atnref", Word::kSkipped},
    {"atnparent", Word::kSkipped},
    {"atrfstart", Word::kSkipped},
    {"atrfend", Word::kSkipped},
    {"xe", Word::kSkipped},
    {"rxe", Word::kSkipped},
    {"txe", Word::kSkipped},
    {"tc", Word::kSkipped},
    {"tcn", Word::kSkipped},
    {"listtext", Word::kSkipped},
    {"pntext", Word::kSkipped},
    {"pntxta", Word::kSkipped},
    {"pntxtb", Word::kSkipped},
    {"pn", Word::kSkipped},
    {"pnseclvl", Word::kSkipped},
    {"nonesttables", Word::kSkipped},
    {"bkmkstart", Word::kSkipped},
    {"bkmkend", Word::kSkipped},
    {"shpinst", Word::kSkipped},
    {"shprslt", Word::kSkipped},
    {"shptxt", Word::kSkipped},
    {"do", Word::kSkipped},
    {"dptxbxtext", Word::kSkipped},
    {"background", Word::kSkipped},
    {"objdata", Word::kSkipped},
    {"objclass", Word::kSkipped},
    {"objname", Word::kSkipped},
    {"objalias", Word::kSkipped},
    {"objsect", Word::kSkipped},
    {"listtable", Word::kSkipped},
    {"listoverridetable", Word::kSkipped},
    {"revtbl", Word::kSkipped},
    {"rsidtbl", Word::kSkipped},
    {"filetbl", Word::kSkipped},
    {"generator", Word::kSkipped},
    {"template", Word::kSkipped},
    {"private", Word::kSkipped},
    {"nextfile", Word::kSkipped},
    {"docvar", Word::kSkipped},
    {"userprops", Word::kSkipped},
    {"mmathPr", Word::kSkipped},
    {"xmlnstbl", Word::kSkipped},
    {"themedata", Word::kSkipped},
    {"colorschememapping", Word::kSkipped},
    {"latentstyles", Word::kSkipped},
    {"datastore", Word::kSkipped},
    {"htmltag", Word::kSkipped},
    {"mhtmltag", Word::kSkipped},
    {"pgdsctbl", Word::kSkipped},
    {"keycode", Word::kSkipped},
    {"title", Word::kSkipped},
    {"subject", Word::kSkipped},
    {"author", Word::kSkipped},
    {"manager", Word::kSkipped},
    {"company", Word::kSkipped},
    {"operator", Word::kSkipped},
    {"category", Word::kSkipped},
    {"keywords", Word::kSkipped},
    {"doccomm", Word::kSkipped},
    {"hlinkbase", Word::kSkipped},
    {"creatim", Word::kSkipped},
    {"revtim", Word::kSkipped},
    {"printim", Word::kSkipped},
    {"buptim", Word::kSkipped},
    {"password", Word::kSkipped},
    {"passwordhash", Word::kSkipped},
    {"sp", Word::kSkipped},
    {"sn", Word::kSkipped},
    {"sv", Word::kSkipped},

    // The four attributes.
    {"plain", Word::kPlain},
    {"cf", Word::kColour},
    {"b", Word::kBold},
    {"ab", Word::kAssociatedBold},
    {"ul", Word::kUnderline},
    {"uld", Word::kUnderline},
    {"uldash", Word::kUnderline},
    {"uldashd", Word::kUnderline},
    {"uldashdd", Word::kUnderline},
    {"uldb", Word::kUnderline},
    {"ulhair", Word::kUnderline},
    {"ulhwave", Word::kUnderline},
    {"ulldash", Word::kUnderline},
    {"ulth", Word::kUnderline},
    {"ulthd", Word::kUnderline},
    {"ulthdash", Word::kUnderline},
    {"ulthdashd", Word::kUnderline},
    {"ulthdashdd", Word::kUnderline},
    {"ulthldash", Word::kUnderline},
    {"ululdbwave", Word::kUnderline},
    {"ulw", Word::kUnderline},
    {"ulwave", Word::kUnderline},
    {"ulnone", Word::kNoUnderline},
    {"up", Word::kUp},
    {"dn", Word::kDown},

    // The rest of the look.
    {"i", Word::kItalic},
    {"strike", Word::kStrike},
    {"striked", Word::kStrike},
    {"v", Word::kHidden},
    {"super", Word::kScript, 1},
    {"sub", Word::kScript, -1},
    {"nosupersub", Word::kScript, 0},
    {"highlight", Word::kBackground},
    {"cb", Word::kBackground},
    {"chcbpat", Word::kBackground},
    {"f", Word::kFont},
    {"fs", Word::kFontSize},
    {"rtlch", Word::kDirection, 1},
    {"ltrch", Word::kDirection, 0},
    {"pard", Word::kParagraphDefaults},
    {"ql", Word::kAlignment, Number(Alignment::kLeft)},
    {"qc", Word::kAlignment, Number(Alignment::kCentre)},
    {"qr", Word::kAlignment, Number(Alignment::kRight)},
    {"qj", Word::kAlignment, Number(Alignment::kJustified)},
    {"qd", Word::kAlignment, Number(Alignment::kJustified)},
    {"rtlpar", Word::kParagraphDirection, 1},
    {"ltrpar", Word::kParagraphDirection, 0},
    {"intbl", Word::kInTable},
    {"itap", Word::kInTable},
    {"li", Word::kLeftIndent},
    {"ri", Word::kRightIndent},
    {"fi", Word::kFirstIndent},
    {"sb", Word::kSpaceBefore},
    {"sa", Word::kSpaceAfter},

    // Fonts.
    {"fcharset", Word::kFontCharset},
    {"cpg", Word::kFontCodePage},

    // Other words that number an entry of the colour table.
    {"acf", Word::kOtherColour},
    {"ulc", Word::kOtherColour},
    {"cfpat", Word::kOtherColour},
    {"cbpat", Word::kOtherColour},
    {"chcfpat", Word::kOtherColour},
    {"clcfpat", Word::kOtherColour},
    {"clcbpat", Word::kOtherColour},
    {"clcfpatraw", Word::kOtherColour},
    {"clcbpatraw", Word::kOtherColour},
    {"trcfpat", Word::kOtherColour},
    {"trcbpat", Word::kOtherColour},
    {"tscellcfpat", Word::kOtherColour},
    {"tscellcbpat", Word::kOtherColour},
    {"brdrcf", Word::kOtherColour},
    {"pncf", Word::kOtherColour},
    {"strokec", Word::kOtherColour},

    // Words that may follow \* without making their group a destination.
    {"cs", Word::kKnown},
    {"s", Word::kKnown},
    {"ds", Word::kKnown},
    {"lang", Word::kKnown},
    {"caps", Word::kKnown},
    {"scaps", Word::kKnown},
    {"outl", Word::kKnown},
    {"shad", Word::kKnown},
    {"deleted", Word::kKnown},
    {"revised", Word::kKnown},
};

// A table with a free place at least every second one: a look-up compares about one name.
class WordIndex {
 public:
  WordIndex() : places_(kPlaces) {
    for (const WordEntry& entry : kWords) {
      std::size_t at = Hash(entry.name);
      while (places_[at] != nullptr) at = (at + 1) % kPlaces;
      places_[at] = &entry;
    }
  }

  const WordEntry* Find(std::string_view name) const {
    for (std::size_t at = Hash(name); places_[at] != nullptr; at = (at + 1) % kPlaces) {
      if (places_[at]->name == name) return places_[at];
    }
    return nullptr;
  }

 private:
  static constexpr std::size_t kPlaces = 1024;
  static_assert(std::size(kWords) * 2 < kPlaces);

  static std::size_t Hash(std::string_view name) {
    std::size_t hash = name.size();
    for (const char c : name.substr(0, 12)) hash = hash * 31 + static_cast<unsigned char>(c);
    return (hash ^ hash >> 10U) % kPlaces;
  }

  std::vector<const WordEntry*> places_;
};

}  // namespace

const WordEntry& LookUp(std::string_view name) {
  static const WordIndex index;
  static constexpr WordEntry kUnknown{};
  const WordEntry* const entry = index.Find(name);
  return entry != nullptr ? *entry : kUnknown;
}

}  // namespace quill::rtf
