#include "window/text/mark_names.h"

#include "text/marks.h"

namespace quill {
namespace {

QString KindOf(Colour colour) {
  switch (colour) {
    case kMarkedA:
      return QStringLiteral("Kind A (blue)");
    case kFoundA:
      return QStringLiteral("Kind A (light blue), found by the search");
    case kMarkedB:
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
