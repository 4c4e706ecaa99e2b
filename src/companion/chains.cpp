#include "companion/chains.h"

#include <algorithm>

// Consider the heaviest chain that ends with a link: that link covers the last stretch of the
// chain's weight. The links of a heaviest chain of all cover the whole weight without a gap. So a
// link whose stretch no other link of a heaviest chain overlaps belongs to all of them.
namespace quill::companion {
namespace {

// The greatest weight entered up to a position.
class Heights {
 public:
  explicit Heights(Position end) : tree_(static_cast<std::size_t>(end) + 2, 0) {}

  void Enter(Position at, std::int64_t weight) {
    for (std::size_t i = Index(at); i < tree_.size(); i += i & (~i + 1)) {
      tree_[i] = std::max(tree_[i], weight);
    }
  }

  std::int64_t UpTo(Position at) const {
    std::int64_t most = 0;
    for (std::size_t i = Index(at); i > 0; i -= i & (~i + 1)) most = std::max(most, tree_[i]);
    return most;
  }

 private:
  static std::size_t Index(Position at) { return static_cast<std::size_t>(at) + 1; }

  std::vector<std::int64_t> tree_;
};

// The index after the last link of the element that begins at index `from`.
std::size_t NextElement(const std::vector<Link>& links, std::size_t from) {
  std::size_t next = from;
  while (next < links.size() && links[next].element == links[from].element) ++next;
  return next;
}

// The weight of the heaviest chain that ends with each link.
std::vector<std::int64_t> WeightsUpTo(const std::vector<Link>& links, Position end) {
  Heights heights(end);
  std::vector<std::int64_t> weights(links.size());
  for (std::size_t from = 0; from < links.size();) {
    const std::size_t next = NextElement(links, from);
    for (std::size_t i = from; i < next; ++i) {
      weights[i] = heights.UpTo(links[i].place.begin) + links[i].weight;
    }
    for (std::size_t i = from; i < next; ++i) heights.Enter(links[i].place.end, weights[i]);
    from = next;
  }
  return weights;
}

// The same links in reverse order, in the text read backward.
std::vector<Link> Backward(const std::vector<Link>& links, Position end) {
  std::vector<Link> backward(links.rbegin(), links.rend());
  for (Link& link : backward) link.place = {end - link.place.end, end - link.place.begin};
  return backward;
}

struct Filled {
  std::int64_t begin;
  std::int64_t end;
  std::size_t link;
};

}  // namespace

std::vector<std::size_t> CommonLinks(const std::vector<Link>& links, Position end) {
  const std::vector<std::int64_t> before = WeightsUpTo(links, end);
  std::vector<std::int64_t> behind = WeightsUpTo(Backward(links, end), end);
  std::reverse(behind.begin(), behind.end());
  const std::int64_t all = before.empty() ? 0 : *std::max_element(before.begin(), before.end());
  std::vector<Filled> filled;
  for (std::size_t i = 0; i < links.size(); ++i) {
    const std::int64_t weight = links[i].weight;
    if (before[i] + behind[i] - weight == all) filled.push_back({before[i] - weight, before[i], i});
  }
  std::sort(filled.begin(), filled.end(),
            [](const Filled& a, const Filled& b) { return a.begin < b.begin; });
  std::vector<std::size_t> common;
  std::int64_t reached = 0;
  for (std::size_t i = 0; i < filled.size(); ++i) {
    const bool alone = reached <= filled[i].begin &&
                       (i + 1 == filled.size() || filled[i + 1].begin >= filled[i].end);
    if (alone) common.push_back(filled[i].link);
    reached = std::max(reached, filled[i].end);
  }
  return common;
}

}  // namespace quill::companion
