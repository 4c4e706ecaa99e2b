// The text and its widget: shows what changed in the document, and only that.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "window/shared/actions.h"
#include "window/shared/widget_binder.h"
#include "window/text/document_view.h"
#include "window/text/text_changes.h"
#include "window/text/text_styles.h"

class QTextCursor;
class QTextDocument;

namespace quill {

class DocumentBinder final : public WidgetBinder {
 public:
  DocumentBinder(TextSurface& text, QWidget& container, Actions& actions);

  // Where the window's watcher puts what it is told.
  TextChanges& Changes() { return changes_; }
  void SelectionMoved() { selectionMoved_ = true; }
  void AskReveal(bool reveal) { reveal_ = reveal; }

  void Show() override;
  QString NameAtCaret() const { return view_.NameAtCaret(); }

 private:
  DocumentBinder(TextSurface& text, DocumentView& view, Actions& actions);

  void ShowWhole();
  void ShowChanges(const TextChanges& changes);
  void ShowEdit(const TextChanges::Edit& edit);
  void ShowFormats(const std::vector<Range>& ranges);
  void ShowParagraphs(Range range);
  std::u32string_view Part(Range range) const;
  // Inserts a range of the text at the cursor.
  void Insert(QTextCursor& cursor, Range range);
  // The format that tells how the paragraph that holds a position looks: that of its end.
  FormatId ParagraphFormat(Position position) const;
  // The style of the paragraph that begins there.
  QTextBlockFormat StyleOf(Position paragraph);

  TextSurface& text_;
  DocumentView& view_;
  TextChanges changes_;
  TextStyles styles_;
  bool selectionMoved_ = false;
  bool reveal_ = false;
};

}  // namespace quill
