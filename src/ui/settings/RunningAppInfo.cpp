#include "ui/settings/RunningAppInfo.h"

#include <QCollator>
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
  std::vector<RunningAppInfo> apps;
  for (const Application& application : workspace.runningApplications()) {
    if (!application.bundleIdentifier.empty()) apps.push_back(infoOf(application, workspace));
  }
  QCollator collator;
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  std::stable_sort(apps.begin(), apps.end(), [&collator](const RunningAppInfo& a, const RunningAppInfo& b) {
    return collator.compare(a.name, b.name) < 0;
  });
  return apps;
}

}  // namespace tessarin::ui
