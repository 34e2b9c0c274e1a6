#pragma once

#include <QPointer>
#include <QWidget>
#include <filesystem>
#include <memory>
#include <optional>

#include "base/Subscription.h"
#include "ui/settings/SettingsServices.h"
#include "ui/settings/SnippetFileDialogs.h"
#include "ui/settings/SnippetFileReading.h"
#include "ui/settings/SnippetSheetState.h"

class QDialog;
class QHBoxLayout;
class QPushButton;

namespace tessarin::ui {

class SnippetListModel;
class SnippetListView;
class StyledLabel;

/// The tab that lists the user's own snippets and adds, edits, deletes, imports and exports them.
class SnippetsSettingsTab final : public QWidget {
  Q_OBJECT

 public:
  explicit SnippetsSettingsTab(const SettingsServices& services, QWidget* parent = nullptr);
  SnippetsSettingsTab(const SettingsServices& services, SnippetFileDialogs dialogs,
                      QWidget* parent = nullptr);

 protected:
  // A file or folder that is dropped is imported.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QHBoxLayout* makeHeader();
  QWidget* makeEmptyState();
  void connectAll();
  void refresh();
  void setSheet(SnippetSheetState state);
  void remove(const QModelIndex& index);
  void chooseImport();
  void importFrom(const std::filesystem::path& path);
  void finishImport(const SnippetFileReading::Result& result);
  void chooseExport();
  void exportTo(const std::filesystem::path& file);
  void setMessage(const QString& message);
  void showNotes(const QString& message, const ForeignSnippets& read);

  SettingsServices services_;
  SnippetFileDialogs dialogs_;
  std::optional<SnippetSheetState> sheetState_;
  QPointer<QDialog> sheet_;
  SnippetFileReading reading_;
  SnippetListModel* model_;
  SnippetListView* list_;
  QPushButton* import_;
  QPushButton* export_;
  QPushButton* add_;
  StyledLabel* message_;
  StyledLabel* builtInCount_;
  QWidget* emptyState_;
  Subscription storeSubscription_;
};

}  // namespace tessarin::ui
