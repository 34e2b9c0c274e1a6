#pragma once

#include <string>

#include "platform/atspi/DBusHandles.h"
#include "platform/atspi/ObjectReference.h"

namespace tessarin::stopwatch {

/// The accessibility bus's side: tells when text has been inserted into a document, and replaces text itself,
/// without looking at anything first.
class TextBus {
 public:
  TextBus();
  bool isConnected() const { return connection_ != nullptr; }
  int fd() const;

  /// `length` is that of the new text as the document's toolkit counts it.
  void replace(const atspi::ObjectReference& document, int start, int end, int length,
               const std::string& text);
  /// Tells where the document's window shows a character.
  void tellPlace(const atspi::ObjectReference& document, int position);
  void takeIn();

 private:
  void listen();
  static DBusHandlerResult onMessage(DBusConnection*, DBusMessage* message, void*);

  atspi::ConnectionPtr connection_;
};

}  // namespace tessarin::stopwatch
