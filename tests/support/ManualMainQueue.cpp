#include "support/ManualMainQueue.h"

#include <algorithm>
#include <utility>

namespace tessarin::testing {

void ManualMainQueue::add(std::chrono::milliseconds delay, std::shared_ptr<Job> job) {
  const std::lock_guard lock(state_->mutex);
  state_->jobs.emplace(Key(now_ + delay, state_->next++), std::move(job));
}

Subscription ManualMainQueue::repeat(std::chrono::milliseconds interval, Work work) {
  auto job = std::make_shared<Job>(Job{std::move(work), interval});
  add(interval, job);
  return Subscription([state = state_, job] {
    const std::lock_guard lock(state->mutex);
    job->interval = std::chrono::milliseconds(0);
    std::erase_if(state->jobs, [&](const auto& entry) { return entry.second == job; });
  });
}

std::shared_ptr<ManualMainQueue::Job> ManualMainQueue::takeNext(Clock::time_point limit) {
  const std::lock_guard lock(state_->mutex);
  const auto first = state_->jobs.begin();
  if (first == state_->jobs.end() || first->first.first > limit) return nullptr;
  now_ = std::max(now_, first->first.first);
  auto job = first->second;
  state_->jobs.erase(first);
  if (job->interval.count() > 0) state_->jobs.emplace(Key(now_ + job->interval, state_->next++), job);
  return job;
}

void ManualMainQueue::advance(std::chrono::milliseconds duration) {
  const auto limit = now_ + duration;
  while (const auto job = takeNext(limit)) job->work();
  const std::lock_guard lock(state_->mutex);
  now_ = limit;
}

std::size_t ManualMainQueue::pending() const {
  const std::lock_guard lock(state_->mutex);
  return state_->jobs.size();
}

}  // namespace tessarin::testing
