#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <optional>

#include "platform/qt/QtConnection.h"
#include "platform/qt/RandrMonitors.h"

namespace tessarin::ui {

/// What is known of the desktop, remembered until somebody tells of a change: each question is a round trip,
/// and the server may be busy drawing. Created after the application object. Main thread.
class DesktopWatch final : public QAbstractNativeEventFilter {
 public:
  DesktopWatch();

  /// Null without an X server. Good until control returns to the main loop.
  const monitors::Desktop* desktop();

  /// Never keeps an event from anybody.
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  bool isChange(const xcb_generic_event_t& event) const;

  const std::optional<QtConnection> x_;
  monitors::Sources sources_{};
  std::uint8_t firstRandrEvent_ = 0;   ///< zero: the server has no such events
  std::uint8_t firstXfixesEvent_ = 0;  ///< likewise
  std::optional<monitors::Desktop> known_;
};

}  // namespace tessarin::ui
