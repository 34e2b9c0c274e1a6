#pragma once

#include <QTextBrowser>

namespace tessarin::ui {

/// Shows a release's notes as text. They come from the network, so nothing in them runs, loads or opens
/// anything; a link to an HTTPS address is handed out when the user follows it.
class ReleaseNotesView final : public QTextBrowser {
  Q_OBJECT

 public:
  /// `notes`: plain text or HTML.
  explicit ReleaseNotesView(const QString& notes, QWidget* parent = nullptr);

  QSize sizeHint() const override { return {460, 220}; }
  QVariant loadResource(int type, const QUrl& name) override;

 Q_SIGNALS:
  void linkFollowed(const QString& address);

 private:
  void follow(const QUrl& link);
};

}  // namespace tessarin::ui
