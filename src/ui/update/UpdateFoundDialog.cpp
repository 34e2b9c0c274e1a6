#include "ui/update/UpdateFoundDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/style/StyledLabel.h"
#include "ui/update/ReleaseNotesView.h"

namespace tessarin::ui {

UpdateFoundDialog::UpdateFoundDialog(const QString& version, const QString& currentVersion,
                                     const QString& notes)
    : UpdateDialog(
          tr("A new version of Tessarin is available"),
          tr("Tessarin %1 can be downloaded now. This is version %2.").arg(version, currentVersion)) {
  addButtons();
  if (notes.trimmed().isEmpty()) {
    content().addStretch();
  } else {
    addNotes(notes);
  }
}

void UpdateFoundDialog::addNotes(const QString& notes) {
  auto* view = new ReleaseNotesView(notes);
  connect(view, &ReleaseNotesView::linkFollowed, this, &UpdateFoundDialog::linkFollowed);
  content().addSpacing(4);
  content().addWidget(new StyledLabel(tr("What has changed:"), TextStyle::subheadline, ColorRole::secondary));
  content().addWidget(view, 1);
}

void UpdateFoundDialog::addButtons() {
  QPushButton* skip = buttons().addButton(tr("Skip This Version"), QDialogButtonBox::ResetRole);
  QPushButton* later = buttons().addButton(tr("Remind Me Later"), QDialogButtonBox::RejectRole);
  QPushButton* download = buttons().addButton(tr("Download…"), QDialogButtonBox::AcceptRole);
  connect(skip, &QPushButton::clicked, this, [this] { choose(UpdateChoice::skip); });
  connect(later, &QPushButton::clicked, this, [this] { choose(UpdateChoice::later); });
  connect(download, &QPushButton::clicked, this, [this] { choose(UpdateChoice::download); });
  download->setDefault(true);
  download->setFocus();
}

void UpdateFoundDialog::choose(UpdateChoice choice) {
  choice_ = choice;
  accept();
}

}  // namespace tessarin::ui
