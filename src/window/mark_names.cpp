#include "window/mark_names.h"

namespace quill {
namespace {

constexpr Colour kKindA = RGB(0, 0, 255);
constexpr Colour kKindAFoundBySearch = RGB(128, 128, 255);
constexpr Colour kKindB = RGB(255, 0, 0);
constexpr Colour kAskedAbout = RGB(192, 0, 192);

QString KindOf(Colour colour) {
  switch (colour) {
    case kKindA:
      return QStringLiteral("Kind A (blue)");
    case kKindAFoundBySearch:
      return QStringLiteral("Kind A (light blue), found by the search");
    case kKindB:
      return QStringLiteral("Kind B (red)");
    case kAskedAbout:
      return QStringLiteral("To be confirmed (purple)");
    default:
      return {};
  }
}

}  // namespace

QString MarkName(const Attributes& attributes) {
  QString name = KindOf(attributes.colour);
  if (name.isEmpty() || attributes.colour == kAskedAbout) return name;
  if (attributes.offset > 0) {
    name += QStringLiteral(", tagged");
  } else if (attributes.bold) {
    name += QStringLiteral(", marked");
  }
  if (attributes.underline) name += QStringLiteral(", in focus");
  return name;
}

QString MarkNameAt(const Document& document, Range selection) {
  const Position begin = selection.begin;
  QString name;
  if (begin < document.Length()) name = MarkName(document.At(begin));
  if (name.isEmpty() && selection.Length() == 0 && begin > 0) {
    name = MarkName(document.At(begin - 1));
  }
  return name;
}

}  // namespace quill
