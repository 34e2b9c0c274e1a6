#include "ui/settings/SnippetFileDialogs.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>
#include <utility>

namespace tessarin::ui {
namespace {

class Texts {
  Q_DECLARE_TR_FUNCTIONS(tessarin::ui::SnippetFileDialogs)
};

using Chosen = std::function<void(const std::filesystem::path&)>;

QFileDialog* makeDialog(QWidget& parent, const QString& title) {
  auto* dialog = new QFileDialog(&parent, title);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  dialog->setDirectory(QFile::exists(documents) ? documents : QDir::homePath());
  return dialog;
}

void ask(QFileDialog& dialog, Chosen chosen) {
  QObject::connect(&dialog, &QFileDialog::fileSelected, dialog.parent(),
                   [chosen = std::move(chosen)](const QString& file) {
                     if (!file.isEmpty()) chosen(QFile::encodeName(file).toStdString());
                   });
  dialog.open();
}

void chooseToOpen(QWidget& parent, Chosen chosen) {
  QFileDialog* dialog = makeDialog(parent, Texts::tr("Import Snippets"));
  dialog->setAcceptMode(QFileDialog::AcceptOpen);
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setNameFilters(
      {Texts::tr("Snippets") + " (*.json *.yml *.yaml *.csv *.tsv *.txt)", Texts::tr("All files") + " (*)"});
  ask(*dialog, std::move(chosen));
}

void chooseToSave(QWidget& parent, Chosen chosen) {
  QFileDialog* dialog = makeDialog(parent, Texts::tr("Export Snippets"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setMimeTypeFilters({"application/json"});
  dialog->setDefaultSuffix("json");
  dialog->selectFile("tessarin-snippets.json");
  ask(*dialog, std::move(chosen));
}

}  // namespace

SnippetFileDialogs SnippetFileDialogs::native() {
  return {chooseToOpen, chooseToSave};
}

}  // namespace tessarin::ui
