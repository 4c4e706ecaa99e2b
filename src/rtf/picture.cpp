#include "rtf/picture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "rtf/syntax/ascii.h"
#include "rtf/syntax/lexer.h"

namespace quill::rtf {
namespace {

constexpr std::int64_t kTwipsInInch = 1440;
// For pictures without a print size: a pixel is 1/96 inch, and drawings count hundredths of a
// millimetre.
constexpr std::int64_t kTwipsInPixel = 15;
constexpr std::int64_t kHundredthsInInch = 2540;
constexpr std::int64_t kMostTwips = 22 * kTwipsInInch;  // the longest page of word processors

// What a group's words say about its width or height.
struct Extent {
  std::int64_t own = 0;   // in pixels, or hundredths of a millimetre
  std::int64_t goal = 0;  // in twips
  std::int64_t scale = 100;

  Twips Shown(bool pixels) const {
    std::int64_t length = goal;
    if (length <= 0) {
      length = pixels ? own * kTwipsInPixel : own * kTwipsInInch / kHundredthsInInch;
    }
    if (scale > 0) length = length * scale / 100;
    return static_cast<Twips>(std::clamp<std::int64_t>(length, 0, kMostTwips));
  }
};

// Walks the \pict groups inside a group, stopping at the data of each.
class PictureWalk {
 public:
  explicit PictureWalk(std::string_view group) : lexer_(group) {}

  // Advances to the next picture's data. Returns false after the last.
  bool Next() {
    if (inPicture_) Data();
    for (Token token = lexer_.Next(); token.kind != Token::kEnd; token = lexer_.Next()) {
      CountBraces(token);
      if (token.kind == Token::kWord && token.word == "pict") Enter();
      if (inPicture_ && depth_ == pictureDepth_ && IsData(token)) {
        first_ = token;
        return true;
      }
      if (token.kind == Token::kWord) ReadWord(token);
    }
    return false;
  }

  bool IsDrawable() const { return pixels_; }
  std::string_view Kind() const { return kind_; }
  PictureSize Size() const { return {width_.Shown(pixels_), height_.Shown(pixels_)}; }

  // The data at which Next stopped. Call it once.
  std::string Data() {
    std::string data;
    int high = -1;
    for (Token token = first_; token.kind != Token::kEnd; token = lexer_.Next()) {
      CountBraces(token);
      if (!inPicture_) break;
      if (depth_ != pictureDepth_) continue;
      if (token.kind == Token::kText) AppendHex(token, data, high);
      if (token.kind == Token::kWord && token.word == "bin") AppendBinary(token, data);
    }
    return data;
  }

 private:
  static bool IsData(const Token& token) {
    return token.kind == Token::kText || (token.kind == Token::kWord && token.word == "bin");
  }

  void CountBraces(const Token& token) {
    if (token.kind == Token::kOpen) ++depth_;
    if (token.kind != Token::kClose) return;
    --depth_;
    if (depth_ < pictureDepth_) inPicture_ = false;
  }

  void Enter() {
    inPicture_ = true;
    pictureDepth_ = depth_;
    width_ = height_ = {};
    pixels_ = false;
    kind_ = {};
  }

  void ReadWord(const Token& token) {
    if (token.word == "objw") width_.goal = token.number;
    if (token.word == "objh") height_.goal = token.number;
    if (!inPicture_ || depth_ != pictureDepth_) return;
    if (token.word == "picw") width_.own = token.number;
    if (token.word == "pich") height_.own = token.number;
    if (token.word == "picwgoal") width_.goal = token.number;
    if (token.word == "pichgoal") height_.goal = token.number;
    if (token.word == "picscalex") width_.scale = token.number;
    if (token.word == "picscaley") height_.scale = token.number;
    if (token.word == "pngblip" || token.word == "jpegblip") pixels_ = true;
    if (token.word == "wmetafile") kind_ = "WMF";
    if (token.word == "emfblip") kind_ = "EMF";
    if (token.word == "macpict") kind_ = "PICT";
    if (token.word == "dibitmap" || token.word == "wbitmap") kind_ = "BMP";
  }

  void AppendHex(const Token& token, std::string& data, int& high) const {
    for (const char c : lexer_.BytesOf(token)) {
      const int digit = HexValue(c);
      if (digit < 0) continue;
      if (high < 0) {
        high = digit;
      } else {
        data += static_cast<char>(high * 16 + digit);
        high = -1;
      }
    }
  }

  void AppendBinary(const Token& token, std::string& data) const {
    const std::string_view bytes = lexer_.BytesOf(token);
    const auto length = static_cast<std::size_t>(std::max(token.number, 0));
    data += bytes.substr(bytes.size() - std::min(length, bytes.size()));
  }

  Lexer lexer_;
  std::int64_t depth_ = 0;
  std::int64_t pictureDepth_ = 0;
  bool inPicture_ = false;
  Token first_;
  Extent width_;
  Extent height_;
  bool pixels_ = false;
  std::string_view kind_;
};

}  // namespace

PictureSize SizeOfPicture(std::string_view group) {
  PictureWalk walk(group);
  walk.Next();
  return walk.Size();
}

std::string_view KindOfPicture(std::string_view group) {
  PictureWalk walk(group);
  walk.Next();
  return walk.Kind();
}

std::string PictureData(std::string_view group) {
  PictureWalk walk(group);
  while (walk.Next()) {
    if (walk.IsDrawable()) return walk.Data();
  }
  return {};
}

}  // namespace quill::rtf
