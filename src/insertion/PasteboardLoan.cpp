#include "insertion/PasteboardLoan.h"

#include <utility>

#include "insertion/PlainText.h"

namespace tessarin {

void PasteboardLoan::save(std::function<void()> ready) {
  request_ = std::make_shared<char>();
  if (saved_ && isCurrent()) {
    ready();
    return;
  }
  saved_ = nullptr;
  isWritten_ = false;
  lastCount_ = pasteboard_.changeCount();
  pasteboard_.snapshot(
      [this, request = std::weak_ptr<char>(request_), ready = std::move(ready)](auto snapshot) {
        if (request.expired()) return;
        saved_ = std::move(snapshot);
        ready();
      });
}

bool PasteboardLoan::isCurrent() const {
  return pasteboard_.changeCount() == lastCount_;
}

void PasteboardLoan::write(const std::string& text) {
  pasteboard_.writeText(text);
  isWritten_ = true;
  isInPlace_ = false;
  isInPlace();
}

bool PasteboardLoan::isInPlace() {
  if (!isInPlace_) {
    isInPlace_ = pasteboard_.isWriteDone();
    lastCount_ = pasteboard_.changeCount();
  }
  return isInPlace_;
}

bool PasteboardLoan::isStillFilling() const {
  return isWritten_ && isCurrent() && !saved_->isComplete;
}

void PasteboardLoan::restore() {
  request_ = nullptr;
  pasteboard_.onRead(nullptr);
  const auto saved = std::exchange(saved_, nullptr);
  if (std::exchange(isWritten_, false) && isCurrent()) pasteboard_.write(saved->items);
}

std::optional<std::string> PasteboardLoan::userText() {
  if (isWritten_ && isCurrent()) return plainText(saved_->items);
  return pasteboard_.string();
}

}  // namespace tessarin
