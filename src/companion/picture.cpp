#include "companion/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string_view>

#include "companion/picture_layout.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

constexpr std::size_t kMostBytes = 1'000'000;
constexpr double kEdge = 16;
constexpr double kLegendHeight = 34;
constexpr double kAxisHeight = 30;
constexpr double kLaneGap = 6;
constexpr std::size_t kMostOfLaneName = 18;
constexpr std::string_view kInk = "#222";
constexpr std::string_view kFaint = "#888";

using Kind = PictureTag::Kind;
using Mode = PictureTag::Mode;

// --- Writing -----------------------------------------------------------------------------------

// Rounded to a tenth of a unit; no decimal for a whole number.
std::string Number(double value) {
  const long tenths = std::lround(value * 10);
  std::string text = tenths < 0 ? "-" : "";
  text += std::to_string(std::labs(tenths) / 10);
  if (tenths % 10 != 0) text += "." + std::to_string(std::labs(tenths) % 10);
  return text;
}

bool FitsXml(char32_t c) {
  return c >= 0x20 ? c != 0xFFFE && c != 0xFFFF : c == U'\t' || c == U'\n';
}

std::string Escaped(std::u32string_view text) {
  std::string out;
  for (const char32_t c : text) {
    switch (c) {
      case U'&':
        out += "&amp;";
        break;
      case U'<':
        out += "&lt;";
        break;
      case U'>':
        out += "&gt;";
        break;
      case U'"':
        out += "&quot;";
        break;
      default:
        out += ToUtf8(std::u32string(1, FitsXml(c) ? c : kReplacement));
    }
  }
  return out;
}

std::u32string Shortened(const std::u32string& text, std::size_t most) {
  return text.size() <= most ? text : text.substr(0, most - 1) + U"\u2026";
}

std::string Path(const std::string& data, std::string_view attributes = {}) {
  std::string out = "<path d=\"" + data + "\"";
  if (!attributes.empty()) out.append(" ").append(attributes);
  return out + "/>\n";
}

std::string Text(double x, double y, std::u32string_view text, std::string_view attributes = {}) {
  std::string out = "<text x=\"" + Number(x) + "\" y=\"" + Number(y) + "\"";
  if (!attributes.empty()) out.append(" ").append(attributes);
  return out + ">" + Escaped(text) + "</text>\n";
}

std::u32string Ascii(std::string_view text) { return {text.begin(), text.end()}; }

// Numbers of five digits or more have narrow spaces between groups of three.
std::u32string Grouped(Position number) {
  std::u32string digits = Ascii(std::to_string(number));
  if (digits.size() < 5) return digits;
  for (std::size_t at = digits.size() - 3; at < digits.size(); at -= 3) {
    if (at > 0) digits.insert(at, U"\u202F");
  }
  return digits;
}

// --- Marks ---------------------------------------------------------------------------------------

std::string_view ColourOf(Kind kind) {
  switch (kind) {
    case Kind::kA:
      return "#2348d0";
    case Kind::kB:
      return "#d01c2c";
    case Kind::kOther:
      break;
  }
  return "#777777";
}

std::string OpenStyle(Kind kind, Mode mode) {
  const std::string colour(ColourOf(kind));
  std::string out = "<g stroke=\"" + colour + "\" fill=\"";
  out += mode == Mode::kRelative ? "#fff" : colour;
  return out + (mode == Mode::kOther ? "\" fill-opacity=\".35\">\n" : "\">\n");
}

// The start tag of a mark's element, without its closing bracket, and the element's name. The
// middle of the mark is at height 0.
struct Shape {
  std::string head;
  std::string_view name;
};

Shape ShapeOf(Kind kind, double x, double radius) {
  const double side = radius * 0.9;
  switch (kind) {
    case Kind::kA:
      return {"<circle cx=\"" + Number(x) + "\" r=\"" + Number(radius) + "\"", "circle"};
    case Kind::kB: {
      const std::string edge = Number(2 * side);
      return {"<path d=\"M" + Number(x - side) + " " + Number(-side) + "h" + edge + "v" + edge +
                  "h-" + edge + "z\"",
              "path"};
    }
    case Kind::kOther:
      break;
  }
  return {"<path d=\"M" + Number(x) + " " + Number(-radius) + "l" + Number(radius) + " " +
              Number(1.8 * radius) + "h-" + Number(2 * radius) + "z\"",
          "path"};
}

// 1-based and inclusive, as in the tags.
std::u32string PlaceOf(Range span) {
  return Ascii(std::to_string(span.begin + 1)) + U"\u2013" + Ascii(std::to_string(span.end));
}

std::u32string TitleOf(const PictureTag& tag, std::size_t most) {
  std::u32string title = Shortened(tag.term, most) + U" (" + PlaceOf(tag.span) + U")";
  std::u32string_view between = U": ";
  for (const std::u32string& piece : tag.told) {
    title.append(between).append(Shortened(piece, most));
    between = U"; ";
  }
  return title;
}

// --- Parts of the drawing ------------------------------------------------------------------------

class Drawing {
 public:
  Drawing(const Picture& picture, const PictureLayout& layout, std::size_t mostOfText)
      : picture_(picture), layout_(layout), mostOfText_(mostOfText) {
    left_ = kEdge + 40;
    for (const auto& lane : picture.lanes) {
      left_ = std::max(left_, kEdge + 7.4 * static_cast<double>(LaneName(lane).size()) + 12);
    }
    for (const PictureTag& tag : picture.tags) {
      if (tag.reference.has_value()) arcHeight_ = std::max(arcHeight_, HeightOfArc(tag));
    }
    axis_ = kEdge + arcHeight_ + 8;
  }

  std::string Draw() {
    const double lanesBegin = axis_ + kAxisHeight;
    std::string body = Arcs() + Axis();
    double top = lanesBegin;
    for (std::size_t lane = 0; lane < layout_.lanes.size(); ++lane) body += Lane(lane, top);
    body += DropLines(lanesBegin);
    for (std::size_t lane = 0; lane < layout_.lanes.size(); ++lane) body += Marks(lane, lanesBegin);
    body += Legend(top + 22);
    return Head(top + kLegendHeight + kEdge) + body + "</svg>\n";
  }

 private:
  static std::u32string LaneName(const std::u32string& lane) {
    return lane.empty() ? U"(no class)" : Shortened(lane, kMostOfLaneName);
  }
  double Width() const { return left_ + kPlotWidth + kEdge + 8; }
  double X(Range span) const { return left_ + MiddleOf(picture_, span); }
  double LaneHeight(std::size_t lane) const {
    return static_cast<double>(layout_.rows[lane]) * layout_.rowHeight + 8;
  }
  double LaneTop(std::size_t lane, double lanesBegin) const {
    for (std::size_t i = 0; i < lane; ++i) lanesBegin += LaneHeight(i) + kLaneGap;
    return lanesBegin;
  }
  double RowMiddle(std::size_t row) const {
    return 4 + layout_.rowHeight * (static_cast<double>(row) + 0.5);
  }
  double HeightOfArc(const PictureTag& tag) const {
    const double distance = std::abs(X(*tag.reference) - X(tag.span));
    return 12 + 120 * std::sqrt(distance / kPlotWidth);
  }

  std::string Head(double height) const {
    const std::string size = Number(Width()) + " " + Number(height);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + size + "\" width=\"" +
           Number(Width()) + "\" height=\"" + Number(height) +
           "\" role=\"img\" font-family=\"Helvetica, Arial, 'Liberation Sans', sans-serif\""
           " font-size=\"12\">\n<title>Temporal operators in " +
           Escaped(picture_.name) +
           "</title>\n<defs><marker id=\"to\" viewBox=\"0 0 6 6\" refX=\"5\" refY=\"3\""
           " markerWidth=\"5\" markerHeight=\"5\" orient=\"auto\"><path d=\"M0 0 6 3 0 6z\" "
           "fill=\"" +
           std::string(kInk) + "\"/></marker></defs>\n<rect width=\"100%\" height=\"100%\"" +
           " fill=\"#fff\"/>\n";
  }

  // From the tag to what it refers to, with an arrowhead there.
  std::string Arc(const PictureTag& tag) const {
    const double from = X(tag.span);
    const double width = X(*tag.reference) - from;
    const std::string start = "M" + Number(from) + " " + Number(axis_ - 2);
    if (std::abs(width) < 1) return Path(start + "c-9-18 9-18 0-1");
    // A quadratic curve reaches half the height of the control point.
    return Path(start + "q" + Number(width / 2) + " " + Number(-2 * HeightOfArc(tag)) + " " +
                Number(width) + " 0");
  }

  std::string Arcs() const {
    const auto arcs =
        std::count_if(picture_.tags.begin(), picture_.tags.end(),
                      [](const PictureTag& tag) { return tag.reference.has_value(); });
    if (arcs == 0) return {};
    std::string out = "<g id=\"references\" fill=\"none\" stroke=\"" + std::string(kInk) +
                      (arcs > 300 ? "\" stroke-width=\".5\" stroke-opacity=\".4\""
                                  : "\" stroke-width=\"1\" stroke-opacity=\".75\"") +
                      " marker-end=\"url(#to)\">\n";
    for (const PictureTag& tag : picture_.tags) {
      if (tag.reference.has_value()) out += Arc(tag);
    }
    return out + "</g>\n";
  }

  // Paragraphs that end within half a unit share a tick.
  std::string ParagraphTicks() const {
    std::string data;
    double last = -1;
    for (const Position end : picture_.paragraphEnds) {
      const double x = left_ + AxisPlace(picture_, static_cast<double>(end));
      if (x - last < 0.5) continue;
      last = x;
      data += "M" + Number(x) + " " + Number(axis_) + "v5";
    }
    return data.empty()
               ? data
               : Path(data, "id=\"paragraphs\" fill=\"none\" stroke-width=\".5\" stroke=\"" +
                                std::string(kFaint) + "\"");
  }

  // 1, 2 or 5 times a power of ten, so that there are at most ten steps.
  Position Step() const {
    Position step = 1;
    for (int i = 0; picture_.length / step > 10; ++i) step = i % 3 == 1 ? step * 5 / 2 : step * 2;
    return step;
  }

  std::string Axis() const {
    std::string out = ParagraphTicks();
    out += Path("M" + Number(left_) + " " + Number(axis_) + "h" + Number(kPlotWidth),
                "stroke=\"" + std::string(kInk) + "\"");
    out += "<g font-size=\"10\" fill=\"#555\" text-anchor=\"middle\">\n";
    const Position step = Step();
    for (Position at = 0; at <= picture_.length; at += step) {
      out += Text(left_ + AxisPlace(picture_, static_cast<double>(at)), axis_ + 17, Grouped(at));
    }
    return out + "</g>\n";
  }

  std::string Lane(std::size_t lane, double& top) const {
    const double height = LaneHeight(lane);
    std::string out = "<rect x=\"" + Number(left_) + "\" y=\"" + Number(top) + "\" width=\"" +
                      Number(kPlotWidth) + "\" height=\"" + Number(height) +
                      "\" fill=\"#f2f2f2\"/>\n";
    out += Text(left_ - 10, top + height / 2 + 4, LaneName(picture_.lanes[lane]),
                "text-anchor=\"end\"");
    top += height + kLaneGap;
    return out;
  }

  // From the axis to each mark, if marks are few.
  std::string DropLines(double lanesBegin) const {
    if (!layout_.labelled) return {};
    std::string data;
    for (std::size_t lane = 0; lane < layout_.lanes.size(); ++lane) {
      for (const PlacedMark& mark : layout_.lanes[lane]) {
        data += "M" + Number(left_ + mark.x) + " " + Number(axis_) + "V" +
                Number(LaneTop(lane, lanesBegin) + RowMiddle(mark.row));
      }
    }
    return data.empty() ? data
                        : Path(data,
                               "fill=\"none\" stroke=\"#999\" stroke-width=\".6\""
                               " stroke-dasharray=\"1 2\"");
  }

  std::string Mark(const PlacedMark& mark) const {
    const PictureTag& tag = picture_.tags[mark.tag];
    const Shape shape = ShapeOf(tag.kind, left_ + mark.x, layout_.radius);
    return shape.head + "><title>" + Escaped(TitleOf(tag, mostOfText_)) + "</title></" +
           std::string(shape.name) + ">\n";
  }

  std::string Label(const PlacedMark& mark) const {
    const double offset = layout_.radius + 4;
    return Text(left_ + mark.x + (mark.labelIsLeft ? -offset : offset), 4,
                LabelOf(picture_.tags[mark.tag]), mark.labelIsLeft ? "text-anchor=\"end\"" : "");
  }

  // A group for each row and, inside it, one for each look that occurs.
  std::string Marks(std::size_t lane, double lanesBegin) const {
    const auto& marks = layout_.lanes[lane];
    std::string out;
    for (auto begin = marks.begin(); begin != marks.end();) {
      const auto end = std::find_if(begin, marks.end(),
                                    [&](const PlacedMark& mark) { return mark.row != begin->row; });
      out += "<g transform=\"translate(0 " +
             Number(LaneTop(lane, lanesBegin) + RowMiddle(begin->row)) + ")\">\n" +
             Row({begin, end}) + "</g>\n";
      begin = end;
    }
    return out;
  }

  std::string Row(std::vector<PlacedMark> marks) const {
    const auto look = [this](const PlacedMark& mark) {
      const PictureTag& tag = picture_.tags[mark.tag];
      return std::pair(tag.kind, tag.mode);
    };
    std::string labels;
    if (layout_.labelled) {
      for (const PlacedMark& mark : marks) labels += Label(mark);
      labels = "<g font-size=\"11\" fill=\"" + std::string(kInk) + "\">\n" + labels + "</g>\n";
    }
    std::stable_sort(marks.begin(), marks.end(),
                     [&](const PlacedMark& a, const PlacedMark& b) { return look(a) < look(b); });
    std::string out;
    for (auto begin = marks.begin(); begin != marks.end();) {
      const auto end = std::find_if(
          begin, marks.end(), [&](const PlacedMark& mark) { return look(mark) != look(*begin); });
      const auto [kind, mode] = look(*begin);
      out += OpenStyle(kind, mode);
      for (; begin != end; ++begin) out += Mark(*begin);
      out += "</g>\n";
    }
    return out + labels;
  }

  bool Occurs(Kind kind) const {
    return std::any_of(picture_.tags.begin(), picture_.tags.end(),
                       [&](const PictureTag& tag) { return tag.kind == kind; });
  }
  bool Occurs(Mode mode) const {
    return std::any_of(picture_.tags.begin(), picture_.tags.end(),
                       [&](const PictureTag& tag) { return tag.mode == mode; });
  }

  std::string Legend(double y) const {
    std::string out = "<g id=\"legend\" font-size=\"11\" fill=\"" + std::string(kInk) +
                      "\" transform=\"translate(0 " + Number(y) + ")\">\n";
    double x = left_ + 6;
    const auto entry = [&](const std::string& sign, std::u32string_view words) {
      out.append(sign).append(Text(x + 12, 4, words));
      x += 34 + 6 * static_cast<double>(words.size());
    };
    const auto mark = [&](Kind shape, Kind colour, Mode mode, std::u32string_view words) {
      entry(OpenStyle(colour, mode) + ShapeOf(shape, x, 5).head + "/></g>\n", words);
    };
    mark(Kind::kA, Kind::kA, Mode::kAbsolute, U"kind A");
    mark(Kind::kB, Kind::kB, Mode::kAbsolute, U"kind B");
    if (Occurs(Kind::kOther)) mark(Kind::kOther, Kind::kOther, Mode::kAbsolute, U"no kind");
    mark(Kind::kA, Kind::kOther, Mode::kAbsolute, U"filled: absolute");
    mark(Kind::kA, Kind::kOther, Mode::kRelative, U"hollow: relative");
    if (Occurs(Mode::kOther)) mark(Kind::kA, Kind::kOther, Mode::kOther, U"pale: no mode");
    entry(Path("M" + Number(x - 8) + " 5q8-18 16 0",
               "fill=\"none\" stroke=\"" + std::string(kInk) + "\" marker-end=\"url(#to)\""),
          U"refers to");
    entry(Path("M" + Number(x) + " -4v8", "stroke=\"" + std::string(kFaint) + "\""),
          U"end of a paragraph");
    out += Text(left_ + kPlotWidth, 4, U"characters from the beginning of the text",
                "text-anchor=\"end\" fill=\"#555\"");
    return out + "</g>\n";
  }

  const Picture& picture_;
  const PictureLayout& layout_;
  std::size_t mostOfText_;
  double left_ = 0;
  double arcHeight_ = 0;
  double axis_ = 0;
};

}  // namespace

std::string DrawPicture(const Picture& picture) {
  const PictureLayout layout = LayOut(picture);
  std::string drawn;
  constexpr std::array<std::size_t, 8> kMostOfText = {
      std::numeric_limits<std::size_t>::max(), 40, 20, 12, 8, 5, 3, 1};
  for (const std::size_t most : kMostOfText) {
    drawn = Drawing(picture, layout, most).Draw();
    if (drawn.size() <= kMostBytes) break;
  }
  return drawn;
}

}  // namespace quill::companion
