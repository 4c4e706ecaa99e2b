// The heights of the paragraphs of a text, one below the other: how far down each one begins, and
// which one lies at a height. Both take as long as the logarithm of their number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quill {

class Heights {
 public:
  // None is negative.
  void Assign(std::vector<int> heights);
  // Puts others in the place of `removed` ones.
  void Replace(std::size_t first, std::size_t removed, const std::vector<int>& inserted);
  void Set(std::size_t index, int height);

  std::size_t Count() const { return heights_.size(); }
  int At(std::size_t index) const { return heights_[index]; }
  // The sum of those before it.
  std::int64_t Top(std::size_t index) const;
  std::int64_t Total() const { return Top(Count()); }
  // The one in which that height lies; above all of them the first, below them the last.
  std::size_t IndexAt(std::int64_t height) const;

 private:
  void Add(std::size_t index, std::int64_t difference);

  std::vector<int> heights_;
  std::vector<std::int64_t> sums_;  // a Fenwick tree, whose number 0 is not used
};

}  // namespace quill
