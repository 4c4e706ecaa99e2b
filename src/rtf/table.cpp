#include "rtf/table.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "rtf/reading/tables.h"
#include "rtf/syntax/lexer.h"

namespace quill::rtf {
namespace {

constexpr std::string_view kDefinition = "\\trowd";
constexpr std::size_t kMostCells = 64;
constexpr Twips kMostEdge = 31680;  // 22 inches, the longest page of word processors
constexpr std::int32_t kWholeShading = 10000;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

unsigned Mixed(unsigned over, unsigned ground, unsigned share) {
  return (over * share + ground * (kWholeShading - share)) / kWholeShading;
}

// Whether the text of the row begins, or another definition.
bool IsBehind(const Token& token, std::string_view bytes) {
  constexpr std::string_view kWords[] = {"pard",    "cell",  "row", "nestcell",
                                         "nestrow", "trowd", "u",   "par"};
  if (token.kind == Token::kText) return bytes.find_first_not_of(' ') != std::string_view::npos;
  if (token.kind != Token::kWord) return token.kind == Token::kEnd || token.kind == Token::kHex;
  return std::find(std::begin(kWords), std::end(kWords), token.word) != std::end(kWords);
}

// Takes the words of one definition, in the file's order.
class RowReader {
 public:
  explicit RowReader(const ColourTable& colours) : colours_(colours) {}

  void Take(const Token& word) {
    if (!TakeBorder(word) && !TakeCell(word)) TakeRow(word);
  }

  RowDefinition Definition() {
    for (std::size_t i = 0; tellsBorders_ && i < row_.cells.size(); ++i) {
      Borders& borders = row_.cells[i].borders;
      Fill(borders.top, outer_.top);
      Fill(borders.bottom, outer_.bottom.kind != Border::kUntold ? outer_.bottom : horizontal_);
      Fill(borders.left, i == 0 ? outer_.left : vertical_);
      Fill(borders.right, i + 1 == row_.cells.size() ? outer_.right : vertical_);
    }
    return std::move(row_);
  }

 private:
  static void Fill(Border& border, const Border& usual) {
    if (border.kind == Border::kUntold) border = usual;
    if (border.kind == Border::kUntold) border.kind = Border::kNone;
  }

  Border* BorderOf(std::string_view word) {
    const std::pair<std::string_view, Border*> places[] = {
        {"clbrdrt", &cell_.borders.top},
        {"clbrdrl", &cell_.borders.left},
        {"clbrdrb", &cell_.borders.bottom},
        {"clbrdrr", &cell_.borders.right},
        {"trbrdrt", &outer_.top},
        {"trbrdrl", &outer_.left},
        {"trbrdrb", &outer_.bottom},
        {"trbrdrr", &outer_.right},
        {"trbrdrh", &horizontal_},
        {"trbrdrv", &vertical_},
        {"cldglu", &diagonal_},
        {"cldgll", &diagonal_},
    };
    for (const auto& [name, border] : places) {
      if (name == word) return border;
    }
    return nullptr;
  }

  bool TakeBorder(const Token& token) {
    if (Border* const border = BorderOf(token.word); border != nullptr) {
      border_ = border;
      return true;
    }
    if (border_ == nullptr || !token.word.starts_with("brdr")) return false;
    if (token.word == "brdrw") {
      border_->width = std::clamp(token.number, 0, kMostEdge);
    } else if (token.word == "brdrcf") {
      border_->colour = ColourOf(colours_, token.number);
    } else {
      const bool none =
          token.word == "brdrnone" || token.word == "brdrnil" || token.word == "brdrtbl";
      border_->kind = none ? Border::kNone : Border::kLine;
      tellsBorders_ = true;
    }
    return true;
  }

  bool TakeCell(const Token& token) {
    if (token.word == "cellx") {
      EndCell(token.number);
    } else if (token.word == "clmrg") {
      cell_.joinsBefore = true;
    } else if (token.word == "clvmrg") {
      cell_.joinsAbove = true;
    } else if (token.word == "clcbpat") {
      ground_ = ColourOf(colours_, token.number);
      isShaded_ = isShaded_ || token.number > 0;
    } else if (token.word == "clcfpat") {
      over_ = ColourOf(colours_, token.number);
    } else if (token.word == "clshdng") {
      share_ = std::clamp(token.number, 0, kWholeShading);
      isShaded_ = isShaded_ || share_ > 0;
    } else {
      return false;
    }
    return true;
  }

  void EndCell(Twips edge) {
    const Twips least = row_.cells.empty() ? row_.left : row_.cells.back().edge;
    cell_.edge = std::clamp(edge, least, kMostEdge);
    if (isShaded_) cell_.shading = Shading();
    if (row_.cells.size() < kMostCells) row_.cells.push_back(cell_);
    cell_ = {};
    border_ = nullptr;
    isShaded_ = false;
    ground_ = RGB(255, 255, 255);
    over_ = 0;
    share_ = 0;
  }

  Colour Shading() const {
    const auto part = [this](unsigned shift) {
      const auto share = static_cast<unsigned>(share_);
      return Mixed(over_ >> shift & 0xFFU, ground_ >> shift & 0xFFU, share);
    };
    return RGB(part(0), part(8), part(16));
  }

  void TakeRow(const Token& token) {
    if (token.word == "trleft") row_.left = std::clamp(token.number, -kMostEdge, kMostEdge);
    if (token.word == "rtlrow") row_.rightToLeft = true;
    if (token.word == "ltrrow") row_.rightToLeft = false;
    if (token.word == "trqc") row_.alignment = Alignment::kCentre;
    if (token.word == "trqr") row_.alignment = Alignment::kRight;
  }

  const ColourTable& colours_;
  RowDefinition row_;
  RowDefinition::Cell cell_;
  Borders outer_;
  Border horizontal_;
  Border vertical_;
  Border diagonal_;
  Border* border_ = nullptr;  // that the next words tell of
  bool tellsBorders_ = false;
  // The pattern of the cell: so many hundredths of a percent of one colour over the other.
  bool isShaded_ = false;
  Colour ground_ = RGB(255, 255, 255);
  Colour over_ = 0;
  std::int32_t share_ = 0;
};

}  // namespace

std::vector<Offset> FindRowDefinitions(std::string_view bytes) {
  std::vector<Offset> places;
  for (std::size_t at = bytes.find(kDefinition); at != std::string_view::npos;
       at = bytes.find(kDefinition, at)) {
    const std::size_t end = at + kDefinition.size();
    const bool whole = end == bytes.size() || !IsLetter(bytes[end]);
    if (whole && (at == 0 || bytes[at - 1] != '\\')) places.push_back(static_cast<Offset>(at));
    at = end;
  }
  return places;
}

RowDefinition RowDefinitionAt(const Source& source, Offset place) {
  Lexer lexer(source.bytes, place);
  lexer.Next();
  RowReader row(source.colours);
  for (Token token = lexer.Next(); !IsBehind(token, lexer.BytesOf(token)); token = lexer.Next()) {
    if (token.kind == Token::kWord) row.Take(token);
  }
  return row.Definition();
}

}  // namespace quill::rtf
