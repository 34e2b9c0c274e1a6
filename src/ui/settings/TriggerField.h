#pragma once

#include <QLineEdit>

namespace tessarin::ui {

/// The field for a snippet's trigger. Takes only what a trigger may have, however it comes in, and keeps the
/// caret in its place. Shortcodes are not expanded in it: the user is writing one.
class TriggerField final : public QLineEdit {
  Q_OBJECT

 public:
  explicit TriggerField(QWidget* parent = nullptr);
};

}  // namespace tessarin::ui
