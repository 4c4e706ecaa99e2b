// The tab stops of a paragraph on the page. Styles count them from where the page begins, the
// toolkit from where each line does.
#pragma once

#include <QTextOption>

#include "window/page/paragraph.h"

namespace quill {

class TabStops {
 public:
  TabStops(const QTextBlock& paragraph, const Page& page);

  // The toolkit has one list of stops for all lines. These are right for the first one.
  void UseForFirst(QTextLayout& layout) const;
  // Whether others have a tab, too, and begin elsewhere.
  bool MissOthers(const QTextLayout& layout) const;
  // Right for the others, and for the first one where it hangs out, up to where they begin.
  void UseForOthers(QTextLayout& layout) const;

 private:
  void Use(QTextLayout& layout, double begin) const;

  QList<QTextOption::Tab> stops_;  // none where the paragraph has no tab
  int lastTab_ = -1;
  // Where lines begin, and how much further the first one does.
  double begin_ = 0;
  double indent_ = 0;
};

}  // namespace quill
