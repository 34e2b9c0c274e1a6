#include "support/FakeAccessibility.h"

#include <utility>

namespace tessarin::testing {

FakeAccessibility::FakeAccessibility() {
  system->attributes[std::string(attribute::focusedApplication)] = ElementRef(application);
}

void FakeAccessibility::focus(const std::shared_ptr<FakeElement>& element) {
  application->attributes[std::string(attribute::focusedElement)] = ElementRef(element);
  focusMoved_.emit();
}

void FakeAccessibility::beginBudget(std::chrono::milliseconds budget) {
  budgets.push_back(budget);
  deadline_ = elapsed_ + budget;
}

std::optional<AttributeValue> FakeAccessibility::attribute(const ElementRef& element, std::string_view name) {
  const FakeElement* found = answering(element, name);
  if (!found) return std::nullopt;
  const auto value = found->attributes.find(name);
  return value != found->attributes.end() ? std::optional(value->second) : std::nullopt;
}

std::optional<AttributeValue> FakeAccessibility::parameterizedAttribute(const ElementRef& element,
                                                                        std::string_view name,
                                                                        const AttributeValue& parameter) {
  const FakeElement* found = answering(element, name);
  if (!found) return std::nullopt;
  const auto reader = found->parameterized.find(name);
  return reader != found->parameterized.end() ? reader->second(parameter) : std::nullopt;
}

AccessibilityStatus FakeAccessibility::setAttribute(const ElementRef& element, std::string_view name,
                                                    const AttributeValue& value) {
  const FakeElement* found = answering(element, name);
  writes.push_back({element.get(), std::string(name), value});
  if (!found) return AccessibilityStatus::failure;
  const auto writer = found->writers.find(name);
  return writer != found->writers.end() ? writer->second(value) : AccessibilityStatus::success;
}

bool FakeAccessibility::spend(std::chrono::milliseconds duration) {
  if (elapsed_ + duration > deadline_) return false;
  elapsed_ += duration;
  while (!script_.empty() && script_.begin()->first <= elapsed_) {
    const auto work = script_.begin()->second;
    script_.erase(script_.begin());
    work();
  }
  return true;
}

const FakeElement* FakeAccessibility::answering(const ElementRef& element, std::string_view name) {
  ++calls;
  const auto* found = dynamic_cast<const FakeElement*>(element.get());
  if (!found || !spend(callDuration) || found->failing.contains(name)) return nullptr;
  return found;
}

}  // namespace tessarin::testing
