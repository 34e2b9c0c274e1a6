#pragma once

#include <map>
#include <set>
#include <vector>

#include "base/Signal.h"
#include "platform/Accessibility.h"

namespace tessarin::testing {

/// An element whose attributes the test writes down.
class FakeElement : public AccessibilityElement {
 public:
  using Parameterized = std::function<std::optional<AttributeValue>(const AttributeValue&)>;
  using Writer = std::function<AccessibilityStatus(const AttributeValue&)>;

  std::map<std::string, AttributeValue, std::less<>> attributes;
  std::map<std::string, Parameterized, std::less<>> parameterized;
  /// Writing an attribute without a writer succeeds and changes nothing.
  std::map<std::string, Writer, std::less<>> writers;
  std::set<std::string, std::less<>> failing;  ///< neither read nor written
};

/// Interfaces of other applications, scripted: a tree of elements, a clock that calls and pauses move, and a
/// budget that is kept.
class FakeAccessibility final : public Accessibility {
 public:
  struct Write {
    const AccessibilityElement* element;
    std::string name;
    AttributeValue value;
  };

  FakeAccessibility();

  bool isTrusted() override { return trusted; }
  void prompt(PromptManner manner) override {
    ++prompts;
    lastPrompt = manner;
  }
  ElementRef systemWide() override { return system; }
  std::optional<AttributeValue> attribute(const ElementRef& element, std::string_view name) override;
  std::optional<AttributeValue> parameterizedAttribute(const ElementRef& element, std::string_view name,
                                                       const AttributeValue& parameter) override;
  AccessibilityStatus setAttribute(const ElementRef& element, std::string_view name,
                                   const AttributeValue& value) override;
  Subscription onFocusMoved(std::function<void()> callback) override {
    return focusMoved_.subscribe(std::move(callback));
  }
  void beginBudget(std::chrono::milliseconds budget) override;
  bool isBusy(const ElementRef& element) override {
    return busy && dynamic_cast<const FakeElement*>(element.get()) != nullptr;
  }
  bool pause(std::chrono::milliseconds duration) override { return spend(duration); }

  /// Puts the focus there, and tells of it.
  void focus(const std::shared_ptr<FakeElement>& element);
  /// Runs when calls and pauses have moved the clock that far.
  void at(std::chrono::milliseconds time, std::function<void()> work) { script_.emplace(time, work); }
  std::chrono::milliseconds elapsed() const { return elapsed_; }

  bool trusted = true;
  bool busy = false;
  int prompts = 0;
  std::optional<PromptManner> lastPrompt;
  std::chrono::milliseconds callDuration{0};  ///< what every call takes
  std::vector<std::chrono::milliseconds> budgets;
  std::vector<Write> writes;
  int calls = 0;

  std::shared_ptr<FakeElement> system = std::make_shared<FakeElement>();
  std::shared_ptr<FakeElement> application = std::make_shared<FakeElement>();

 private:
  bool spend(std::chrono::milliseconds duration);
  const FakeElement* answering(const ElementRef& element, std::string_view name);

  std::chrono::milliseconds elapsed_{0};
  std::chrono::milliseconds deadline_{std::chrono::milliseconds::max()};
  std::multimap<std::chrono::milliseconds, std::function<void()>> script_;
  Signal<> focusMoved_;
};

/// A focused text field with a document behind it. Positions count characters.
class FakeTextField : public FakeElement {
 public:
  static std::shared_ptr<FakeTextField> create() {
    return std::shared_ptr<FakeTextField>(new FakeTextField());
  }

  /// Types characters at the caret.
  void type(const std::string& text);
  void setCaret(std::size_t position);
  void clear() { erase({0, static_cast<std::int64_t>(characters_.size())}); }
  std::string document() const;
  std::size_t caret() const { return caret_; }

  /// What a write of the text answers; the document changes accordingly.
  AccessibilityStatus writeResult = AccessibilityStatus::success;

 private:
  FakeTextField();

  std::optional<AttributeValue> textIn(const TextRange& range) const;
  void erase(const TextRange& range);
  AccessibilityStatus replaceSelection(const std::string& text);

  std::vector<std::string> characters_;
  std::size_t caret_ = 0;
  std::optional<TextRange> selection_;  ///< until it has been written
};

}  // namespace tessarin::testing
