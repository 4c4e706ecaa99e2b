#include "rtf/syntax/words.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
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
    {"bin", Word::kData},

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
    {"field", Word::kField},
    {"fldinst", Word::kFieldInstruction},
    {"fldrslt", Word::kTransparent},
    {"nesttableprops", Word::kTransparent},

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

    // Other words that refer to the colour table.
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

    // May follow \* without making their group a destination.
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

// Destinations that hold no text of the document, with or without a leading \*.
constexpr std::string_view kSkippedWords =
    "aftncn aftnsep aftnsepc annotation atnauthor atndate atnicn atnid atnparent atnref "
    "atntime atrfend atrfstart author background bkmkend bkmkstart blipuid buptim category "
    "colorschememapping comment company creatim datafield datastore defchp defpap do doccomm "
    "docvar dptxbxtext ebcend ebcstart factoidname falt fchars ffdeftext ffentrymcr "
    "ffexitmcr ffformat ffhelptext ffl ffname ffstattext file filetbl fldtype fname fontemb "
    "fontfile footer footerf footerl footerr footnote formfield ftncn ftnsep ftnsepc "
    "generator gridtbl header headerf headerl headerr hl hlfr hlinkbase hlloc hlsrc hsv "
    "htmltag info keycode keywords latentstyles lchars levelnumbers leveltext lfolevel "
    "linkval list listlevel listname listoverride listoverridetable listpicture "
    "liststylename listtable listtext lsdlockedexcept mailmerge manager mhtmltag "
    "mmaddfieldname mmathPict mmathPr mmconnectstr mmconnectstrdata mmdatasource "
    "mmheadersource mmmailsubject mmodso mmodsofilter mmodsofldmpdata mmodsomappedname "
    "mmodsoname mmodsorecipdata mmodsosort mmodsosrc mmodsotable mmodsoudl mmodsoudldata "
    "mmodsouniquetag mmquery moMath moMathPara nextfile nonesttables objalias objclass "
    "objdata objname objsect objtime oldcprops oldpprops oldsprops oldtprops oleclsid "
    "operator panose password passwordhash pgdsctbl pgp pgptbl picprop pn pnseclvl pntext "
    "pntxta pntxtb printim private propname protend protstart protusertbl pxe revtbl revtim "
    "rsidtbl rxe shpinst shprslt shptxt sn sp staticval stylesheet subject sv svb tc tcn "
    "template themedata title txe userprops wgrffmtfilter windowcaption writereservation "
    "writereservhash xe xform xmlattrname xmlattrvalue xmlclose xmlname xmlnstbl xmlopen";

// A hash table at most half full: a look-up compares about one name.
class WordIndex {
 public:
  WordIndex() : places_(kPlaces) {
    for (const WordEntry& entry : kWords) Add(entry);
    for (std::string_view rest = kSkippedWords; !rest.empty();) {
      const std::string_view name = rest.substr(0, rest.find(' '));
      Add({name, Word::kSkipped});
      rest.remove_prefix(std::min(rest.size(), name.size() + 1));
    }
  }

  // Returns an empty entry if there is none.
  const WordEntry& Find(std::string_view name) const { return places_[PlaceOf(name)]; }

 private:
  static constexpr std::size_t kPlaces = 1024;
  static_assert((std::size(kWords) + std::ranges::count(kSkippedWords, ' ') + 1) * 2 < kPlaces);

  static std::size_t Hash(std::string_view name) {
    std::size_t hash = name.size();
    const std::size_t length = std::min<std::size_t>(name.size(), 12);
    for (std::size_t i = 0; i < length; ++i) hash = hash * 31 + static_cast<unsigned char>(name[i]);
    return (hash ^ hash >> 10U) % kPlaces;
  }

  std::size_t PlaceOf(std::string_view name) const {
    std::size_t at = Hash(name);
    while (!places_[at].name.empty() && places_[at].name != name) at = (at + 1) % kPlaces;
    return at;
  }
  void Add(const WordEntry& entry) { places_[PlaceOf(entry.name)] = entry; }

  std::vector<WordEntry> places_;
};

}  // namespace

const WordEntry& LookUp(std::string_view name) {
  static const WordIndex index;
  return index.Find(name);
}

}  // namespace quill::rtf
