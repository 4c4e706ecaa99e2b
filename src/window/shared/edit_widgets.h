// The widgets that text boxes and combo boxes are typed into. Their characters change by keys,
// input methods and the context menu: the mouse drags nothing out of them, as a drag could take the
// characters along. Text that does not fit is told by a tool tip.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

class QMimeData;

namespace quill {

// What of a clipboard or a drop is text to type, also where it has formatted text alone: no
// pictures, and paragraphs that end in U+000A.
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
