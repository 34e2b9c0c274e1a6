#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessarin {

/// The best few hits, best first: the higher total, and of equal ones the earlier snippet.
class TopHits {
 public:
  struct Hit {
    int total = 0;
    std::uint32_t id = 0;
    bool operator==(const Hit&) const = default;
  };

  explicit TopHits(std::size_t limit) : limit_(limit) {}

  /// Whether such a hit would be taken in.
  bool wants(int total, std::uint32_t id) const {
    return hits_.size() < limit_ || (!hits_.empty() && isBetter({total, id}, hits_.back()));
  }

  /// Takes the hit if it is good enough; one that is in already stays once.
  void offer(int total, std::uint32_t id);

  const std::vector<Hit>& hits() const { return hits_; }

 private:
  static bool isBetter(const Hit& a, const Hit& b) {
    return a.total != b.total ? a.total > b.total : a.id < b.id;
  }

  std::size_t limit_;
  std::vector<Hit> hits_;
};

}  // namespace tessarin
