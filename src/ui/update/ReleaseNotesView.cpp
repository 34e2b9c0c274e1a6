#include "ui/update/ReleaseNotesView.h"

#include <QImage>

#include "ui/style/Colors.h"
#include "ui/update/ReleaseNotesHtml.h"

namespace tessarin::ui {

ReleaseNotesView::ReleaseNotesView(const QString& notes, QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setAccessibleName(tr("Release notes"));
  document()->setDocumentMargin(8);
  document()->setDefaultStyleSheet("a { color: " + colorOf(ColorRole::link, palette()).name() + " }");
  setHtml(releaseNotesHtml(notes));
  connect(this, &QTextBrowser::anchorClicked, this, &ReleaseNotesView::follow);
}

QVariant ReleaseNotesView::loadResource(int type, const QUrl&) {
  // Given nothing at all, or an image without a pixel, the document would read local files by itself.
  if (type != QTextDocument::ImageResource) return QByteArray();
  QImage pixel(1, 1, QImage::Format_ARGB32);
  pixel.fill(Qt::transparent);
  return pixel;
}

void ReleaseNotesView::follow(const QUrl& link) {
  const bool isSafe = link.isValid() && link.scheme() == u"https" && !link.host().isEmpty();
  if (isSafe) Q_EMIT linkFollowed(link.toString(QUrl::FullyEncoded));
}

}  // namespace tessarin::ui
