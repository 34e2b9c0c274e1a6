#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include "platform/atspi/CallBudget.h"
#include "platform/atspi/DBusHandles.h"

namespace tessarin::atspi {

/// What became of a call.
struct Answer {
  enum class Kind {
    replied,
    refused,     ///< the application answered with an error
    unanswered,  ///< sent, and will be carried out when the application gets to it
    notSent,     ///< no bus, no time left, or the application is being passed over
  };
  Kind kind = Kind::notSent;
  MessagePtr reply;  ///< only when replied
};

/// Calls into other applications and waits for their answers, for a short time. An application that lets a
/// call time out is passed over until that answer has come. Main thread.
class CallChannel {
 public:
  explicit CallChannel(std::chrono::milliseconds longestCall) : longestCall_(longestCall) {}

  /// From now on calls go this way. The connection is connected and has not been used yet.
  void use(ConnectionPtr connection);
  bool isConnected() const;
  CallBudget& budget() { return budget_; }

  Answer call(MessagePtr request);
  /// The same for several calls to one application, all sent before the first answer is waited for.
  std::vector<Answer> callAll(std::vector<MessagePtr> requests);
  /// Goes on waiting for the answer that the application owes us. `unanswered` when it still does not come,
  /// `notSent` when it owes none.
  Answer awaitOwed(const std::string& bus);
  /// Whether the application has been asked something that it has not answered yet. Until it does it is
  /// passed over.
  bool owesAnswer(const std::string& bus);

 private:
  /// Null when it could not be sent.
  PendingCallPtr send(DBusMessage* request);
  Answer await(PendingCallPtr pending, const std::string& bus, std::chrono::milliseconds longest);
  void takeIn();
  bool wait(DBusPendingCall* pending, CallBudget::Duration longest);
  static Answer answered(DBusPendingCall* pending);

  const std::chrono::milliseconds longestCall_;
  ConnectionPtr connection_;
  /// Goes before the connection that it belongs to.
  std::map<std::string, PendingCallPtr> owed_;
  CallBudget budget_;
};

}  // namespace tessarin::atspi
