#include "window/text/text_pictures.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cstring>

#include "text/unicode.h"
#include "window/page/page_layout.h"
#include "window/shared/lengths.h"

namespace quill {
namespace {

// Twips in a pixel of 1/96 inch, as the toolkit counts lengths in a text.
// Of pictures whose size the file does not tell.
constexpr double kLeastLength = 16;
constexpr int kMostCachedKilobytes = 64 * 1024;

// The formats drawn, told by what the data begins with: nothing else is to reach the toolkit's
// plug-ins.
const char* FormatOf(const QByteArray& data) {
  if (data.startsWith("\x89PNG")) return "png";
  if (data.startsWith("\xFF\xD8\xFF")) return "jpeg";
  return nullptr;
}

QImage Decode(const std::string& bytes, QSize pixels) {
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  const char* const format = FormatOf(data);
  if (format == nullptr) return {};
  QBuffer buffer(&data);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  const QSize own = reader.size();
  // Never larger than it is seen; smaller ones are enlarged by the painter.
  if (own.width() > pixels.width() && own.height() > pixels.height()) reader.setScaledSize(pixels);
  return reader.read();
}

// In place of a picture that is not drawn, with its kind where there is room for it.
void DrawFrame(QPainter& painter, const QRectF& place, std::string_view kind) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QColor(0xa0, 0xa0, 0xa0));
  painter.setBrush(QColor(0xf0, 0xf0, 0xf0));
  painter.drawRect(place.adjusted(0, 0, -1, -1));
  painter.setPen(QColor(0x60, 0x60, 0x60));
  const QString name = QString::fromLatin1(kind.data(), static_cast<qsizetype>(kind.size()));
  const QRectF needed = painter.fontMetrics().boundingRect(name);
  if (needed.width() < place.width() && needed.height() < place.height()) {
    painter.drawText(place, Qt::AlignCenter, name);
  }
  painter.restore();
}

}  // namespace

TextPictures::TextPictures(const Document& document, const PositionMap& positions)
    : document_(document), positions_(positions), images_(kMostCachedKilobytes) {}

void* TextPictures::qt_metacast(const char* name) {
  if (name != nullptr && std::strcmp(name, qobject_interface_iid<QTextObjectInterface*>()) == 0) {
    return static_cast<QTextObjectInterface*>(this);
  }
  return QObject::qt_metacast(name);
}

void TextPictures::Serve(QTextDocument& shown) {
  sizes_.clear();
  images_.clear();
  shown.documentLayout()->registerHandler(kObjectType, this);
}

std::string_view TextPictures::GroupAt(const QTextDocument& shown, int position) const {
  // An input method's text shifts what stands behind it.
  const QTextBlock block = shown.findBlock(position);
  const QString preedit = block.layout()->preeditAreaText();
  if (!preedit.isEmpty() && position - block.position() > block.layout()->preeditAreaPosition()) {
    position -= static_cast<int>(preedit.size());
  }
  const Position at = positions_.ToModel(position);
  if (at < 0 || at >= document_.Length()) return {};
  if (document_.Text()[static_cast<std::size_t>(at)] != kObject) return {};
  return document_.BytesOf(at);
}

rtf::PictureSize TextPictures::SizeOf(std::string_view group) {
  const auto [entry, isNew] = sizes_.try_emplace(group.data());
  if (isNew) entry->second = rtf::SizeOfPicture(group);
  return entry->second;
}

QSizeF TextPictures::intrinsicSize(QTextDocument* shown, int position,
                                   const QTextFormat& /*format*/) {
  const rtf::PictureSize size = SizeOf(GroupAt(*shown, position));
  const Page& page = PageLayout::Of(*shown).ThePage();
  const QSizeF whole(std::max(size.width / kTwipsInPixel, kLeastLength) * page.scale,
                     std::max(size.height / kTwipsInPixel, kLeastLength) * page.scale);
  const QTextBlock paragraph = shown->findBlock(position);
  const double room =
      std::max(RoomAt(paragraph, position - paragraph.position(), page), kLeastLength);
  return whole.width() <= room ? whole : whole * (room / whole.width());
}

void TextPictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument* shown,
                              int position, const QTextFormat& /*format*/) {
  const double ratio = painter->device()->devicePixelRatioF();
  const std::string_view group = GroupAt(*shown, position);
  const QImage image = ImageOf(group, (place.size() * ratio).toSize());
  if (image.isNull()) {
    DrawFrame(*painter, place, rtf::KindOfPicture(group));
    return;
  }
  painter->save();
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  painter->drawImage(place, image);
  painter->restore();
}

QImage TextPictures::ImageOf(std::string_view group, QSize pixels) {
  if (group.empty()) return {};
  const Decoded* const known = images_.object(group.data());
  if (known != nullptr && known->pixels == pixels) return known->image;
  QImage image = Decode(rtf::PictureData(group), pixels);
  images_.insert(group.data(), new Decoded{pixels, image}, 1 + image.sizeInBytes() / 1024);
  return image;
}

}  // namespace quill
