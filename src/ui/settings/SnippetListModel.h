#pragma once

#include <QAbstractListModel>
#include <string>
#include <vector>

#include "base/Subscription.h"
#include "model/Snippet.h"

namespace tessarin {
class SnippetStore;
class UserDefaults;
}  // namespace tessarin

namespace tessarin::ui {

/// The user's snippets as rows, in the store's order, following every change of store and trigger character.
/// Appending costs the same however many there are: an import appends them one by one.
class SnippetListModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role {
    nameRole = Qt::UserRole,
    triggerRole,      ///< between two trigger characters
    replacementRole,  ///< in one line
  };

  /// Both must outlive the model.
  SnippetListModel(SnippetStore& store, UserDefaults& defaults, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  const Snippet& snippet(const QModelIndex& index) const;

 private:
  void follow();
  void followRemoval(std::size_t now);
  void followTrigger();
  std::vector<std::string> ids() const;

  SnippetStore& store_;
  UserDefaults& defaults_;
  /// What the rows show: tells afterwards which of them went away.
  std::vector<std::string> shown_;
  QString trigger_;
  Subscription storeSubscription_;
  Subscription defaultsSubscription_;
};

}  // namespace tessarin::ui
