#include "ui/update/UpdateWindows.h"

#include <utility>

#include "platform/Workspace.h"
#include "ui/style/Windows.h"
#include "ui/update/CheckingDialog.h"
#include "ui/update/MessageDialog.h"
#include "ui/update/UpdateFoundDialog.h"

namespace tessarin::ui {
namespace {

/// Versions come from the network and stand in a sentence.
constexpr int longestVersion = 40;

QString shownVersion(const std::string& version) {
  const QString text = QString::fromStdString(version).simplified();
  return text.size() <= longestVersion ? text : text.left(longestVersion - 1) + u'…';
}

struct FailureText {
  UpdateFailure failure;
  const char* text;
};

constexpr FailureText failureTexts[] = {
    {UpdateFailure::noConnection,
     QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows",
                       "The update server cannot be reached. Is this computer connected to the network?")},
    {UpdateFailure::timedOut,
     QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows", "The update server took too long to answer.")},
    {UpdateFailure::notTrusted,
     QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows",
                       "The update server cannot be trusted, as its certificate is not in order.")},
    {UpdateFailure::notSecure, QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows",
                                                 "Updates are looked for over secure connections only, and "
                                                 "the address of the update server does not lead to one.")},
    {UpdateFailure::tooManyRedirects,
     QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows",
                       "The update server leads from one address to another without end.")},
    {UpdateFailure::serverError, QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows",
                                                   "The update server does not have the list of updates.")},
    {UpdateFailure::tooLarge,
     QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows", "The update server sent more than a list of updates.")},
    {UpdateFailure::malformed,
     QT_TRANSLATE_NOOP("tessarin::ui::UpdateWindows", "The list of updates cannot be read.")},
};

const char* failureText(UpdateFailure failure) {
  for (const FailureText& known : failureTexts) {
    if (known.failure == failure) return known.text;
  }
  return "";
}

}  // namespace

UpdateWindows::~UpdateWindows() {
  for (const QPointer<QDialog>& dialog : leaving_) delete dialog;
}

void UpdateWindows::showChecking(std::function<void()> cancel) {
  show<CheckingDialog>(std::make_unique<CheckingDialog>(), Manner::inFront,
                       [cancel = std::move(cancel)](CheckingDialog&) { cancel(); });
}

void UpdateWindows::showUpdate(const AppcastItem& item, const std::string& currentVersion, Manner manner,
                               std::function<void(UpdateChoice)> chosen) {
  auto dialog = std::make_unique<UpdateFoundDialog>(
      shownVersion(item.displayVersion()), shownVersion(currentVersion), QString::fromStdString(item.notes));
  QObject::connect(dialog.get(), &UpdateFoundDialog::linkFollowed, dialog.get(),
                   [this](const QString& address) { workspace_.openUrl(address.toStdString()); });
  show<UpdateFoundDialog>(std::move(dialog), manner, [chosen = std::move(chosen)](UpdateFoundDialog& closed) {
    chosen(closed.choice());
  });
}

void UpdateWindows::showUpToDate(const std::string& currentVersion) {
  auto dialog = std::make_unique<MessageDialog>(
      tr("Tessarin is up to date"),
      tr("Version %1 is the newest one there is.").arg(shownVersion(currentVersion)));
  show<MessageDialog>(std::move(dialog), Manner::inFront, [](MessageDialog&) {});
}

void UpdateWindows::showFailure(UpdateFailure failure) {
  auto dialog =
      std::make_unique<MessageDialog>(tr("Tessarin could not look for updates"), tr(failureText(failure)));
  show<MessageDialog>(std::move(dialog), Manner::inFront, [](MessageDialog&) {});
}

void UpdateWindows::focus() {
  if (dialog_) bringToFront(*dialog_);
}

void UpdateWindows::dismiss() {
  if (!dialog_) return;
  dialog_->disconnect();
  dialog_->hide();
  // Later: it may be the one whose signal brought us here.
  dialog_->deleteLater();
  std::erase(leaving_, nullptr);
  leaving_.emplace_back(dialog_.release());
}

template <class Dialog>
void UpdateWindows::show(std::unique_ptr<Dialog> dialog, Manner manner, std::function<void(Dialog&)> closed) {
  dismiss();
  Dialog& window = *dialog;
  QObject::connect(&window, &QDialog::finished, &window, [this, &window, closed = std::move(closed)] {
    dismiss();
    closed(window);
  });
  window.setAttribute(Qt::WA_ShowWithoutActivating, manner == Manner::unobtrusive);
  window.ensurePolished();
  window.adjustSize();
  centreOnScreen(window);
  dialog_ = std::move(dialog);
  if (manner == Manner::inFront) return bringToFront(window);
  window.show();
}

}  // namespace tessarin::ui
