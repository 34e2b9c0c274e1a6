#include "platform/atspi/CallChannel.h"

#include <utility>

namespace tessarin::atspi {

using Clock = std::chrono::steady_clock;

void CallChannel::use(ConnectionPtr connection) {
  owed_.clear();
  connection_ = std::move(connection);
}

bool CallChannel::isConnected() const {
  return connection_ && dbus_connection_get_is_connected(connection_.get());
}

Answer CallChannel::call(MessagePtr request) {
  std::vector<MessagePtr> requests;
  requests.push_back(std::move(request));
  return std::move(callAll(std::move(requests)).front());
}

std::vector<Answer> CallChannel::callAll(std::vector<MessagePtr> requests) {
  std::vector<Answer> answers(requests.size());
  const std::string bus = dbus_message_get_destination(requests.front().get());
  if (!isConnected() || budget_.allowance(longestCall_) == CallBudget::Duration::zero() || owesAnswer(bus)) {
    return answers;
  }
  std::vector<PendingCallPtr> sent;
  sent.reserve(requests.size());
  for (const MessagePtr& request : requests) sent.push_back(send(request.get()));
  auto longest = longestCall_;
  for (std::size_t i = 0; i < sent.size(); ++i) {
    if (!sent[i]) continue;
    answers[i] = await(std::move(sent[i]), bus, longest);
    // Answers come in order: who is late with one is not waited for again.
    if (answers[i].kind == Answer::Kind::unanswered) longest = {};
  }
  return answers;
}

PendingCallPtr CallChannel::send(DBusMessage* request) {
  DBusPendingCall* sent = nullptr;
  if (!dbus_connection_send_with_reply(connection_.get(), request, &sent, DBUS_TIMEOUT_INFINITE))
    sent = nullptr;
  return PendingCallPtr(sent);
}

Answer CallChannel::await(PendingCallPtr pending, const std::string& bus, std::chrono::milliseconds longest) {
  if (wait(pending.get(), budget_.allowance(longest))) return answered(pending.get());
  // Nobody asks again an application that has died; the bus has answered for it.
  std::erase_if(owed_, [](const auto& owed) { return dbus_pending_call_get_completed(owed.second.get()); });
  owed_[bus] = std::move(pending);
  return {Answer::Kind::unanswered, nullptr};
}

Answer CallChannel::awaitOwed(const std::string& bus) {
  const auto owed = owed_.find(bus);
  if (owed == owed_.end()) return {};
  if (!wait(owed->second.get(), budget_.allowance(longestCall_))) return {Answer::Kind::unanswered, nullptr};
  const PendingCallPtr pending = std::move(owed->second);
  owed_.erase(owed);
  return answered(pending.get());
}

bool CallChannel::owesAnswer(const std::string& bus) {
  const auto owed = owed_.find(bus);
  if (owed == owed_.end()) return false;
  takeIn();
  if (!dbus_pending_call_get_completed(owed->second.get())) return true;
  owed_.erase(owed);
  return false;
}

void CallChannel::takeIn() {
  dbus_connection_read_write(connection_.get(), 0);
  while (dbus_connection_dispatch(connection_.get()) == DBUS_DISPATCH_DATA_REMAINS) {
  }
}

bool CallChannel::wait(DBusPendingCall* pending, CallBudget::Duration longest) {
  const auto start = Clock::now();
  while (!dbus_pending_call_get_completed(pending)) {
    const auto left = longest - (Clock::now() - start);
    if (left <= CallBudget::Duration::zero()) break;
    const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(left).count();
    if (!dbus_connection_read_write_dispatch(connection_.get(), static_cast<int>(milliseconds))) break;
  }
  budget_.charge(Clock::now() - start);
  return dbus_pending_call_get_completed(pending);
}

Answer CallChannel::answered(DBusPendingCall* pending) {
  MessagePtr reply(dbus_pending_call_steal_reply(pending));
  if (!reply || dbus_message_get_type(reply.get()) == DBUS_MESSAGE_TYPE_ERROR) {
    return {Answer::Kind::refused, nullptr};
  }
  return {Answer::Kind::replied, std::move(reply)};
}

}  // namespace tessarin::atspi
