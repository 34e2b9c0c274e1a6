#include "model/TopHits.h"

#include <algorithm>

namespace tessarin {

void TopHits::offer(int total, std::uint32_t id) {
  const Hit hit{total, id};
  if (!wants(total, id)) return;
  const auto place = std::lower_bound(hits_.begin(), hits_.end(), hit, isBetter);
  if (place != hits_.end() && *place == hit) return;
  hits_.insert(place, hit);
  if (hits_.size() > limit_) hits_.pop_back();
}

}  // namespace tessarin
