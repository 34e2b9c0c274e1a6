#pragma once

#include <QObject>
#include <optional>

#include "base/Signal.h"
#include "platform/Accessibility.h"
#include "platform/qt/OwnTextField.h"

namespace tessarin::ui {

/// Answers for the windows of our own program inside the process, and hands on everything else: a call over
/// the accessibility bus into our own process would wait for ourselves.
class OwnWindowsAccessibility final : public Accessibility {
 public:
  /// `others` answers for all other applications and outlives this object, which is created after the
  /// application object.
  explicit OwnWindowsAccessibility(Accessibility& others);

  bool isTrusted() override { return others_.isTrusted(); }
  void prompt(PromptManner manner) override { others_.prompt(manner); }
  ElementRef systemWide() override { return systemWide_; }
  std::optional<AttributeValue> attribute(const ElementRef& element, std::string_view name) override;
  std::optional<AttributeValue> parameterizedAttribute(const ElementRef& element, std::string_view name,
                                                       const AttributeValue& parameter) override;
  AccessibilityStatus setAttribute(const ElementRef& element, std::string_view name,
                                   const AttributeValue& value) override;
  Subscription onFocusMoved(std::function<void()> callback) override;
  void beginBudget(std::chrono::milliseconds budget) override { others_.beginBudget(budget); }
  bool isBusy(const ElementRef& element) override;
  /// While one of our windows has the focus no pause helps: it goes on with its work only after we do.
  bool pause(std::chrono::milliseconds duration) override;

 private:
  std::optional<AttributeValue> ofSystem(std::string_view name);

  Accessibility& others_;
  ElementRef systemWide_;
  struct Selection {
    ElementRef element;
    TextRange range;
  };
  std::optional<Selection> selection_;
  Signal<> focusMoved_;
  QObject context_;
};

}  // namespace tessarin::ui
