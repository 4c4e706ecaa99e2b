#include "rtf/syntax/words.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

#include "text/format.h"
#include "text/paragraph_details.h"

namespace quill::rtf {
namespace {

template <class Name>
constexpr std::int32_t Number(Name name) {
  return static_cast<std::int32_t>(name);
}

constexpr std::int32_t kOfSomethingElse = -1;

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
    {"deleted", Word::kDeleted},
    {"revised", Word::kInserted},
    {"caps", Word::kCapitals, Number(Capitals::kAll)},
    {"scaps", Word::kCapitals, Number(Capitals::kSmall)},
    {"expnd", Word::kLetterSpacing, 5},
    {"expndtw", Word::kLetterSpacing, 1},
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
    {"sl", Word::kLineSpacing},
    {"slmult", Word::kLineSpacingIsProportional},

    // What stands around paragraphs, and their tab stops.
    {"tx", Word::kTabStop},
    {"tql", Word::kTabAlignment, Number(TabAlignment::kLeft)},
    {"tqc", Word::kTabAlignment, Number(TabAlignment::kCentre)},
    {"tqr", Word::kTabAlignment, Number(TabAlignment::kRight)},
    {"tqdec", Word::kTabAlignment, Number(TabAlignment::kDecimal)},
    {"tldot", Word::kTabLeader, Number(Leader::kDots)},
    {"tlmdot", Word::kTabLeader, Number(Leader::kDots)},
    {"tlhyph", Word::kTabLeader, Number(Leader::kHyphens)},
    {"tlul", Word::kTabLeader, Number(Leader::kLine)},
    {"tlth", Word::kTabLeader, Number(Leader::kLine)},
    {"tleq", Word::kTabLeader, Number(Leader::kHyphens)},
    {"brdrt", Word::kBorder, kTopBorder},
    {"brdrb", Word::kBorder, kBottomBorder},
    {"brdrl", Word::kBorder, kLeftBorder},
    {"brdrr", Word::kBorder, kRightBorder},
    {"brdrbtw", Word::kBorder, kBorderBetween},
    {"box", Word::kBorder, kAllBorders},
    {"trbrdrt", Word::kBorder, kOfSomethingElse},
    {"trbrdrb", Word::kBorder, kOfSomethingElse},
    {"trbrdrl", Word::kBorder, kOfSomethingElse},
    {"trbrdrr", Word::kBorder, kOfSomethingElse},
    {"trbrdrh", Word::kBorder, kOfSomethingElse},
    {"trbrdrv", Word::kBorder, kOfSomethingElse},
    {"clbrdrt", Word::kBorder, kOfSomethingElse},
    {"clbrdrb", Word::kBorder, kOfSomethingElse},
    {"clbrdrl", Word::kBorder, kOfSomethingElse},
    {"clbrdrr", Word::kBorder, kOfSomethingElse},
    {"cldgll", Word::kBorder, kOfSomethingElse},
    {"cldglu", Word::kBorder, kOfSomethingElse},
    {"tsbrdrt", Word::kBorder, kOfSomethingElse},
    {"tsbrdrb", Word::kBorder, kOfSomethingElse},
    {"tsbrdrl", Word::kBorder, kOfSomethingElse},
    {"tsbrdrr", Word::kBorder, kOfSomethingElse},
    {"tsbrdrh", Word::kBorder, kOfSomethingElse},
    {"tsbrdrv", Word::kBorder, kOfSomethingElse},
    {"tsbrdrdgl", Word::kBorder, kOfSomethingElse},
    {"tsbrdrdgr", Word::kBorder, kOfSomethingElse},
    {"pgbrdrt", Word::kBorder, kOfSomethingElse},
    {"pgbrdrb", Word::kBorder, kOfSomethingElse},
    {"pgbrdrl", Word::kBorder, kOfSomethingElse},
    {"pgbrdrr", Word::kBorder, kOfSomethingElse},
    {"chbrdr", Word::kBorder, kOfSomethingElse},
    {"brdrnil", Word::kBorderStyle, Number(BorderStyle::kNone)},
    {"brdrnone", Word::kBorderStyle, Number(BorderStyle::kNone)},
    {"brdrs", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrth", Word::kBorderStyle, Number(BorderStyle::kThick)},
    {"brdrhair", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrsh", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrdb", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrdot", Word::kBorderStyle, Number(BorderStyle::kDotted)},
    {"brdrdash", Word::kBorderStyle, Number(BorderStyle::kDashed)},
    {"brdrdashsm", Word::kBorderStyle, Number(BorderStyle::kDashed)},
    {"brdrdashd", Word::kBorderStyle, Number(BorderStyle::kDashed)},
    {"brdrdashdd", Word::kBorderStyle, Number(BorderStyle::kDashed)},
    {"brdrdashdot", Word::kBorderStyle, Number(BorderStyle::kDashed)},
    {"brdrdashdotdot", Word::kBorderStyle, Number(BorderStyle::kDashed)},
    {"brdrdashdotstr", Word::kBorderStyle, Number(BorderStyle::kDashed)},
    {"brdrtriple", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrtnthsg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrthtnsg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrtnthtnsg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrtnthmg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrthtnmg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrtnthtnmg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrtnthlg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrthtnlg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrtnthtnlg", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdrwavy", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrwavydb", Word::kBorderStyle, Number(BorderStyle::kDouble)},
    {"brdremboss", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrengrave", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdroutset", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrinset", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrframe", Word::kBorderStyle, Number(BorderStyle::kSingle)},
    {"brdrw", Word::kBorderWidth},
    {"brsp", Word::kBorderGap},
    {"brdrcf", Word::kBorderColour},
    {"shading", Word::kShadingAmount},
    {"cfpat", Word::kShadingFront},
    {"cbpat", Word::kShadingBack},

    // Fonts.
    {"fcharset", Word::kFontCharset},
    {"cpg", Word::kFontCodePage},

    // Other words that refer to the colour table.
    {"acf", Word::kOtherColour},
    {"ulc", Word::kOtherColour},
    {"chcfpat", Word::kOtherColour},
    {"clcfpat", Word::kOtherColour},
    {"clcbpat", Word::kOtherColour},
    {"clcfpatraw", Word::kOtherColour},
    {"clcbpatraw", Word::kOtherColour},
    {"trcfpat", Word::kOtherColour},
    {"trcbpat", Word::kOtherColour},
    {"tscellcfpat", Word::kOtherColour},
    {"tscellcbpat", Word::kOtherColour},
    {"pncf", Word::kOtherColour},
    {"strokec", Word::kOtherColour},

    // May follow \* without making their group a destination.
    {"cs", Word::kKnown},
    {"s", Word::kKnown},
    {"ds", Word::kKnown},
    {"lang", Word::kKnown},
    {"outl", Word::kKnown},
    {"shad", Word::kKnown},
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

bool NamesColour(Word word) {
  switch (word) {
    case Word::kColour:
    case Word::kOtherColour:
    case Word::kBackground:
    case Word::kBorderColour:
    case Word::kShadingFront:
    case Word::kShadingBack:
      return true;
    default:
      return false;
  }
}

bool HidesBehindStar(Word word) {
  return word == Word::kUnknown || word == Word::kData || word == Word::kLetterSpacing ||
         (word >= Word::kLineSpacing && word <= Word::kShadingAmount && !NamesColour(word));
}

const WordEntry& LookUp(std::string_view name) {
  static const WordIndex index;
  return index.Find(name);
}

}  // namespace quill::rtf
