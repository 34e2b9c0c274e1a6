#include "ui/settings/RunningAppInfo.h"

#include <QCollator>
#include <QGuiApplication>
#include <algorithm>

#include "platform/Workspace.h"
#include "ui/settings/ApplicationIcon.h"

namespace tessarin::ui {
namespace {

RunningAppInfo infoOf(const Application& application, Workspace& workspace) {
  const auto installed = workspace.application(application.bundleIdentifier);
  const std::string& name = application.name.empty() ? application.bundleIdentifier : application.name;
  return {application.bundleIdentifier, QString::fromStdString(name),
          installed ? applicationIcon(installed->icon) : QIcon()};
}

}  // namespace

std::vector<RunningAppInfo> runningApps(Workspace& workspace) {
  // The settings themselves are a window of a task bar.
  const std::string ours = QGuiApplication::desktopFileName().toStdString();
  std::vector<RunningAppInfo> apps;
  for (const Application& application : workspace.runningApplications()) {
    const std::string& identifier = application.bundleIdentifier;
    if (!identifier.empty() && identifier != ours) apps.push_back(infoOf(application, workspace));
  }
  QCollator collator;
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  std::stable_sort(apps.begin(), apps.end(), [&collator](const RunningAppInfo& a, const RunningAppInfo& b) {
    return collator.compare(a.name, b.name) < 0;
  });
  return apps;
}

}  // namespace tessarin::ui
