// The widgets for typing into text boxes and combo boxes. Their characters change only through
// keys, input methods and the context menu: nothing can be dragged out of them, because a drag
// could remove the characters. Text that does not fit is shown in a tool tip.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

class QMimeData;

namespace quill {

// The text to type from a clipboard or a drop, even if that has formatted text only: no pictures,
// and paragraphs that end in U+000A.
QString PlainText(const QMimeData& data);
bool HasPlainText(const QMimeData& data);

class LineEdit final : public QLineEdit {
 public:
  explicit LineEdit(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  bool IsCut() const;
  void Paste();
};

class SeveralLinesEdit final : public QPlainTextEdit {
 public:
  explicit SeveralLinesEdit(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace quill
