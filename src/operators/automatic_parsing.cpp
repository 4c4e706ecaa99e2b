#include "operators/automatic_parsing.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "operators/parse_item.h"
#include "operators/term_search.h"
#include "text/case_folding.h"
#include "text/marks.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// One scan of the text for one item.
struct Scan {
  std::size_t term = 0;
  std::optional<OperatorKind> kind;
};

// The scans of a run, in list order, and the distinct terms that they search for.
class ScanList {
 public:
  // For the item in ParseTerm and ParseCategory.
  void Add(const WorkState& state) {
    const auto [entry, isNew] =
        numbers_.try_emplace(FoldCase(state.ParseTerm.Get()), terms_.size());
    if (isNew) terms_.push_back(entry->first);
    scans_.push_back({entry->second, KindOfCategory(state.ParseCategory.Get())});
  }
  const std::vector<Scan>& Scans() const { return scans_; }
  const std::vector<std::u32string>& Terms() const { return terms_; }

 private:
  std::unordered_map<std::u32string, std::size_t> numbers_;
  std::vector<std::u32string> terms_;
  std::vector<Scan> scans_;
};

using HitsByTerm = std::vector<std::vector<Range>>;

HitsByTerm FindHits(const std::vector<std::u32string>& terms, const std::u32string& text) {
  HitsByTerm hits(terms.size());
  for (const TermHit& hit : TermSearch(terms).Hits(text)) {
    const auto length = static_cast<Position>(terms[hit.term].size());
    hits[hit.term].push_back({hit.begin, hit.begin + length});
  }
  return hits;
}

// The scans whose marks no later scan overwrites: two scans for one term hit the same characters.
std::vector<Scan> ScansThatLast(const std::vector<Scan>& scans, std::size_t terms) {
  enum Later : char { kNothing, kWithoutKind, kWithKind };
  std::vector<Later> later(terms, kNothing);
  std::vector<Scan> lasting;
  for (auto scan = scans.rbegin(); scan != scans.rend(); ++scan) {
    const Later own = scan->kind ? kWithKind : kWithoutKind;
    if (later[scan->term] >= own) continue;
    later[scan->term] = own;
    lasting.push_back(*scan);
  }
  std::reverse(lasting.begin(), lasting.end());
  return lasting;
}

void Mark(TextSurface& text, const std::vector<Range>& hits, std::optional<OperatorKind> kind) {
  std::vector<Range> raised;
  std::vector<Range> others;
  for (const Range& hit : hits) {
    (text.CharOffset(hit).value_or(0) > 0 ? raised : others).push_back(hit);
  }
  AttributeChange change;
  if (kind) {
    change.colour = FoundColour(*kind);
    change.bold = true;
    text.Format(others, change);
  }
  change.bold = false;
  text.Format(raised, change);
}

// Leaves ParsePos, TagStart and the caret where scanning for one item after another would.
void EndScans(Form1& form, const std::vector<Scan>& scans, const HitsByTerm& hits) {
  const auto moved = std::find_if(scans.rbegin(), scans.rend(),
                                  [&](const Scan& scan) { return !hits[scan.term].empty(); });
  // SelStart, which counts from 0, gets ParsePos, which counts from 1, so the caret ends up one
  // character further on. That is intended.
  if (moved != scans.rend()) form.RichTextBox1.SelStart = hits[moved->term].back().end + 1;

  for (const Scan& scan : scans) {
    const std::vector<Range>& found = hits[scan.term];
    const Position parsePos = found.empty() ? 1 : found.back().end + 1;
    form.WorkState.ParsePos = parsePos;
    if (parsePos < form.WorkState.TextLen) {
      form.WorkState.TagStart = 0;
    } else if (!found.empty()) {
      form.WorkState.TagStart = static_cast<double>(found.back().begin + 1);
    }
  }
}

void Parse(Form1& form, const ScanList& list) {
  const HitsByTerm hits = FindHits(list.Terms(), form.RichTextBox1.Text());
  for (const Scan& scan : ScansThatLast(list.Scans(), list.Terms().size())) {
    Mark(form.RichTextBox1, hits[scan.term], scan.kind);
  }
  EndScans(form, list.Scans(), hits);
}

}  // namespace

void Parse_1_Click(Form1& form) {
  if (!HasItems(form)) return;
  ListBox& list = form.Parse_listbox;
  list.ListIndex = 0;
  ScanList scans;
  while (list.ListIndex < list.ListCount() - 1) {
    TakeItem(form);
    scans.Add(form.WorkState);
    SelectNextParseItem(form);
  }
  Parse(form, scans);
}

void Parse_2_Click(Form1& form) {
  if (!HasItems(form) || !HasSelectedItem(form)) return;
  TakeItem(form);
  ScanList scans;
  scans.Add(form.WorkState);
  Parse(form, scans);
}

void SelectNextParseItem(Form1& form) {
  const int last = form.Parse_listbox.ListCount() - 1;
  if (last < 0 || form.WorkState.ParseIndex == last) return;
  form.WorkState.ParseIndex = form.WorkState.ParseIndex + 1;
  form.Parse_listbox.ListIndex = form.WorkState.ParseIndex.Get();
}

}  // namespace quill
