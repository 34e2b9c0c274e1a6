#include "ui/settings/SettingsView.h"

#include <QShortcut>
#include <algorithm>

#include "model/SnippetStore.h"
#include "ui/settings/BlockedAppsSettingsTab.h"
#include "ui/settings/GeneralSettingsTab.h"
#include "ui/settings/PasteFallbackAppsSettingsTab.h"
#include "ui/settings/PermissionsSettingsTab.h"
#include "ui/settings/SettingsTabBar.h"
#include "ui/settings/SnippetsSettingsTab.h"
#include "ui/settings/StatsSettingsTab.h"
#include "ui/style/Symbol.h"

namespace tessarin::ui {
namespace {

constexpr QSize smallest(580, 400);

}  // namespace

SettingsView::SettingsView(const SettingsServices& services, QWidget* parent) : QTabWidget(parent) {
  setMinimumSize(smallest);
  setTabBar(new SettingsTabBar);
  setAccessibleName(tr("Settings"));
  addTab(new GeneralSettingsTab(services), symbolIcon("gear"), tr("General"));
  addTab(new SnippetsSettingsTab(services), symbolIcon("text-badge-plus"), tr("Snippets"));
  addTab(
      new StatsSettingsTab(services.snippetStore.usageTracker(), services.userDefaults, services.mainQueue),
      symbolIcon("chart-bar"), tr("Stats"));
  addTab(new BlockedAppsSettingsTab(services), symbolIcon("hand-raised"), tr("Blocked Apps"));
  addTab(new PasteFallbackAppsSettingsTab(services), symbolIcon("doc-on-clipboard"), tr("Paste Mode Apps"));
  addTab(new PermissionsSettingsTab(services), symbolIcon("lock-shield"), tr("Permissions"));
  addShortcut(Qt::CTRL | Qt::Key_PageDown, 1);
  addShortcut(Qt::CTRL | Qt::Key_PageUp, -1);
}

int SettingsView::heightOfFirstTab() const {
  int tallest = 0;
  for (int index = 0; index < count(); ++index)
    tallest = std::max(tallest, widget(index)->sizeHint().height());
  return sizeHint().height() - tallest + widget(0)->sizeHint().height();
}

/// Ctrl+Tab is the widget's own.
void SettingsView::addShortcut(QKeyCombination keys, int step) {
  connect(new QShortcut(keys, this), &QShortcut::activated, this,
          [this, step] { setCurrentIndex((currentIndex() + step + count()) % count()); });
}

}  // namespace tessarin::ui
