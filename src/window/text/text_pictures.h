// The pictures in the text. A picture is one character whose bytes the document keeps: its size is
// read from them when it is laid out, and its data when it is painted. What cannot be drawn is a
// frame of the same size.
#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QTextObjectInterface>
#include <unordered_map>

#include "rtf/picture.h"
#include "window/text/position_map.h"

class QTextDocument;

namespace quill {

class TextPictures final : public QObject, public QTextObjectInterface {
 public:
  // Both must outlive the pictures.
  TextPictures(const Document& document, const PositionMap& positions);

  // The object type of the styles of a text. It says how a picture would be drawn; characters that
  // stand for none don't heed it.
  static constexpr int kObjectType = QTextFormat::UserObject + 1;

  // Draws the pictures of a widget's document, in place of those of the one before.
  void Serve(QTextDocument& shown);

  QSizeF intrinsicSize(QTextDocument* shown, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& place, QTextDocument* shown, int position,
                  const QTextFormat& format) override;
  // What the toolkit's compiler would write of a class that implements an interface.
  void* qt_metacast(const char* name) override;

 private:
  // The bytes of the picture at a position of the widget; empty where none stands there.
  std::string_view GroupAt(const QTextDocument& shown, int position) const;
  rtf::PictureSize SizeOf(std::string_view group);
  // As it is to be painted on so many pixels; null where it can't be drawn.
  QImage ImageOf(std::string_view group, QSize pixels);

  const Document& document_;
  const PositionMap& positions_;
  struct Decoded {
    QSize pixels;
    QImage image;
  };
  // By where the picture's bytes stand.
  std::unordered_map<const char*, rtf::PictureSize> sizes_;
  QCache<const char*, Decoded> images_;
};

}  // namespace quill
