#pragma once

#include <QDialog>
#include <optional>

#include "base/Subscription.h"
#include "model/SnippetDraft.h"
#include "ui/settings/PreviewClipboard.h"
#include "ui/settings/SettingsServices.h"

class QBoxLayout;
class QFormLayout;
class QLineEdit;
class QPushButton;

namespace tessarin::ui {

class ReplacementEditor;
class ShortLabel;
class StyledLabel;

/// The sheet in which a snippet is made or changed. Writes it into the store when it is confirmed.
class SnippetEditorView final : public QDialog {
  Q_OBJECT

 public:
  /// Without a snippet to edit a new one is made.
  SnippetEditorView(const SettingsServices& services, std::optional<Snippet> editingSnippet,
                    QWidget* parent = nullptr);

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QFormLayout* makeForm();
  QBoxLayout* makeReplacementBlock();
  QWidget* makePreview();
  QBoxLayout* makeButtons();
  void load();
  void readFields();
  void showPreview();
  void fitHeight();
  void confirm();

  SettingsServices services_;
  std::optional<Snippet> editingSnippet_;
  SnippetDraft draft_;
  PreviewClipboard clipboard_;
  QLineEdit* name_;
  QLineEdit* trigger_;
  QLineEdit* keywords_;
  ReplacementEditor* replacement_;
  QWidget* preview_;
  ShortLabel* previewTrigger_;
  ShortLabel* previewText_;
  QPushButton* cancel_;
  QPushButton* confirm_;
  Subscription defaultsSubscription_;
};

}  // namespace tessarin::ui
