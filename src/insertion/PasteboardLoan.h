#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Pasteboard.h"

namespace tessarin {

/// Borrows a pasteboard from the user: keeps what was on it while our own text is, and puts it back, unless
/// somebody has copied something else meanwhile. Main thread.
class PasteboardLoan {
 public:
  /// The pasteboard must outlive the loan.
  explicit PasteboardLoan(Pasteboard& pasteboard) : pasteboard_(pasteboard) {}

  /// Saves the user's contents, unless that has been done and nobody has copied since. `ready` is called once
  /// the pasteboard may be written; asking again forgets it.
  void save(std::function<void()> ready);
  bool isReady() const { return saved_ != nullptr; }
  /// Whether nobody else has changed the pasteboard since `save` or `write`.
  bool isCurrent() const;
  /// Only after `ready`.
  void write(const std::string& text);
  /// Whether the text is there; asked until it is, where the write took longer.
  bool isInPlace();
  /// Whether the pasteboard holds our text, and nothing can be put back without loss yet.
  bool isStillFilling() const;
  /// Ends the loan at once. Does nothing when there is none.
  void restore();

  /// Runs when our text has been read; see Pasteboard.
  void onRead(std::function<void()> callback) { pasteboard_.onRead(std::move(callback)); }
  bool hasBeenRead() const { return pasteboard_.hasBeenRead(); }
  ReadManner readManner() const { return pasteboard_.readManner(); }
  std::int64_t requestCount() const { return pasteboard_.requestCount(); }
  std::int64_t textRequestCount() const { return pasteboard_.textRequestCount(); }

  /// The plain text as the user knows it: what will be put back, or what is there.
  std::optional<std::string> userText();

 private:
  Pasteboard& pasteboard_;
  std::shared_ptr<const PasteboardSnapshot> saved_;
  std::int64_t lastCount_ = 0;  ///< the change count that was ours, or that was saved
  bool isWritten_ = false;
  bool isInPlace_ = false;
  std::shared_ptr<char> request_;  ///< lives as long as an answer to the last `save` is wanted
};

}  // namespace tessarin
