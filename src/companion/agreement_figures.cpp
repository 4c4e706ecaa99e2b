#include "companion/agreement_figures.h"

#include <iterator>
#include <utility>

namespace quill::companion {
namespace {

class Figures {
 public:
  void Of(std::string readerA, std::string readerB, const char* field) {
    readerA_ = std::move(readerA);
    readerB_ = std::move(readerB);
    field_ = field;
  }
  void Count(const char* measure, std::int64_t count) { Push(measure, {}, count, true); }
  void Value(const char* measure, std::optional<double> value, std::int64_t n) {
    Push(measure, value, n, false);
  }
  const std::vector<Figure>& All() const { return figures_; }

 private:
  void Push(const char* measure, std::optional<double> value, std::int64_t n, bool isCount) {
    figures_.push_back({readerA_, readerB_, field_, measure, value, n, isCount});
  }

  std::string readerA_;
  std::string readerB_;
  const char* field_ = "";
  std::vector<Figure> figures_;
};

using Named = std::pair<const std::string, Reading>;

void ComparePair(const Named& a, const Named& b, Matching matching, Figures& figures) {
  const Matches matches = matching == Matching::kOverlapping ? MatchOverlapping(a.second, b.second)
                                                             : MatchEqual(a.second, b.second);
  const SpanAgreement spans{static_cast<std::int64_t>(a.second.size()),
                            static_cast<std::int64_t>(b.second.size()),
                            static_cast<std::int64_t>(matches.size())};
  figures.Of(a.first, b.first, "span");
  figures.Count("spans_a", spans.spansA);
  figures.Count("spans_b", spans.spansB);
  figures.Count("matched", spans.matched);
  figures.Value("precision", spans.Precision(), spans.spansB);
  figures.Value("recall", spans.Recall(), spans.spansA);
  figures.Value("f1", spans.F1(), spans.spansA + spans.spansB);
  for (std::size_t field = 0; field < kEnumeratedFields.size(); ++field) {
    const LabelAgreement labels = CompareLabels(a.second, b.second, matches, field);
    figures.Of(a.first, b.first, kEnumeratedFields[field].name);
    figures.Count("n", labels.compared);
    figures.Value("agreement", labels.Agreement(), labels.compared);
    figures.Value("kappa", labels.kappa, labels.compared);
  }
  const ReferenceAgreement references = CompareReferences(a.second, b.second, matches);
  figures.Of(a.first, b.first, "reference");
  figures.Count("n", references.compared);
  figures.Value("agreement", references.Agreement(), references.compared);
}

void CompareAll(const std::vector<Reading>& readings, Figures& figures) {
  for (std::size_t field = 0; field < kEnumeratedFields.size(); ++field) {
    const Reliability reliability = MeasureReliability(readings, field);
    figures.Of("*", "*", kEnumeratedFields[field].name);
    figures.Value("alpha", reliability.alpha, reliability.units);
  }
}

}  // namespace

std::vector<Figure> CompareReaders(const std::map<std::string, Reading>& readings,
                                   Matching matching) {
  Figures figures;
  std::vector<Reading> all;
  all.reserve(readings.size());
  for (auto a = readings.begin(); a != readings.end(); ++a) {
    for (auto b = std::next(a); b != readings.end(); ++b) ComparePair(*a, *b, matching, figures);
    all.push_back(a->second);
  }
  CompareAll(all, figures);
  return figures.All();
}

}  // namespace quill::companion
