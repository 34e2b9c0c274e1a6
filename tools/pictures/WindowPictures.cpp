#include "WindowPictures.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QVariantAnimation>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "CutOffTexts.h"
#include "SampleDesktop.h"
#include "main/SessionInputMonitoring.h"
#include "menu/MenuBarManager.h"
#include "platform/qt/QtStatusBar.h"
#include "ui/InputMonitoringHelp.h"
#include "ui/TrustPrompt.h"
#include "ui/onboarding/OnboardingWindow.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/settings/SnippetEditorView.h"
#include "ui/update/UpdateWindows.h"

namespace tessarin::pictures {
namespace {

/// Saves pictures of windows under names of its own, and tells of the texts that are cut off in them.
class Camera {
 public:
  explicit Camera(QString prefix) : prefix_(std::move(prefix)) {}

  void take(const QString& name, QWidget& window) {
    settle();
    while (isMoving(window)) QApplication::processEvents();
    // Without a loop that runs, nothing else removes what has come to its end.
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QString file = prefix_ + name + ".png";
    isGood_ = window.grab().save(file) && isGood_;
    for (const QString& text : cutOffTexts(window)) {
      std::fprintf(stderr, "%s: cut off: %s\n", qPrintable(file), qPrintable(text));
      isGood_ = false;
    }
  }

  /// Of the window that has come up last, which is then closed.
  void takeTop(const QString& name) {
    settle();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (!window->isVisible()) continue;
      take(name, *window);
      window->hide();
      return;
    }
    isGood_ = false;
  }

  bool isGood() const { return isGood_; }

 private:
  static void settle() {
    for (int round = 0; round < 3; ++round) QApplication::processEvents();
  }

  static bool isMoving(const QWidget& window) {
    const auto animations = window.findChildren<QVariantAnimation*>();
    return std::any_of(animations.begin(), animations.end(), [](const QVariantAnimation* animation) {
      return animation->state() == QAbstractAnimation::Running;
    });
  }

  QString prefix_;
  bool isGood_ = true;
};

constexpr const char* tabNames[] = {"general", "snippets", "stats", "blocked", "paste-mode", "permissions"};

void takeSettings(Camera& camera, SampleDesktop& desktop, const QString& state) {
  ui::SettingsWindow settings(desktop.services());
  settings.open();
  auto* tabs = settings.window()->findChild<QTabWidget*>();
  for (int index = 0; index < tabs->count(); ++index) {
    tabs->setCurrentIndex(index);
    camera.take(QStringLiteral("settings-%1-%2-%3").arg(index + 1).arg(tabNames[index], state),
                *settings.window());
  }
}

void takeEditor(Camera& camera, SampleDesktop& desktop) {
  ui::SnippetEditorView empty(desktop.services(), std::nullopt);
  empty.show();
  camera.take("editor-new", empty);
  empty.hide();
  ui::SnippetEditorView filled(desktop.services(), desktop.store->userSnippets()[1]);
  filled.show();
  camera.take("editor-edit", filled);
}

void takeOnboarding(Camera& camera, SampleDesktop& desktop, const QString& state) {
  ui::OnboardingWindow window(desktop.permissions(), desktop.defaults, desktop.queue);
  window.present();
  for (int step = 1; step <= 4; ++step) {
    camera.take(QStringLiteral("onboarding-%1-%2").arg(step).arg(state), window);
    for (auto* button : window.findChildren<QPushButton*>()) {
      if (step < 4 && button->isDefault()) button->click();
    }
  }
}

void takeUpdates(Camera& camera, SampleDesktop& desktop) {
  ui::UpdateWindows windows(desktop.workspace);
  windows.showChecking([] {});
  camera.takeTop("update-checking");
  AppcastItem item;
  item.version = "0.2.0";
  item.notes =
      "<h3>New</h3><ul><li>Expands in more applications</li><li>Starts faster</li></ul><p>Have a look at the "
      "<a href=\"https://example.org/notes\">whole list</a>.</p>";
  windows.showUpdate(item, "0.1.0", UpdateUserDriver::Manner::inFront, [](UpdateChoice) {});
  camera.takeTop("update-found");
  windows.showUpToDate("0.1.0");
  camera.takeTop("update-none");
  windows.showFailure(UpdateFailure::noConnection);
  camera.takeTop("update-failed");
}

void takeMenu(Camera& camera, SampleDesktop& desktop, const QString& state) {
  ui::QtStatusBar statusBar;
  MenuBarManager manager(statusBar, desktop.defaults, desktop.queue, desktop.permissions(),
                         {[](SnippetStore*) {}, [] {}, [] {}});
  manager.setupStatusItem();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* menu = qobject_cast<QMenu*>(window)) menu->popup({});
  }
  camera.takeTop("menu-" + state);
}

void takeDialogs(Camera& camera) {
  ui::TrustPrompt trust([](bool) {});
  trust.ask(PromptManner::inFront);
  camera.takeTop("trust");
  ui::InputMonitoringHelp help;
  const Explanation why = explain(KeyTapState::waylandSession);
  help.show(why.headline, why.text);
  camera.takeTop("input-monitoring");
}

}  // namespace

bool saveWindows(const QString& prefix, const std::filesystem::path& resources) {
  Camera camera(prefix);
  SampleDesktop empty(resources, false);
  empty.grants.trusted = false;
  empty.grants.monitoring = false;
  SampleDesktop filled(resources, true);
  takeSettings(camera, empty, "empty");
  takeSettings(camera, filled, "filled");
  takeEditor(camera, filled);
  takeOnboarding(camera, empty, "missing");
  takeOnboarding(camera, filled, "granted");
  takeMenu(camera, empty, "missing");
  takeMenu(camera, filled, "granted");
  takeUpdates(camera, filled);
  takeDialogs(camera);
  return camera.isGood();
}

}  // namespace tessarin::pictures
