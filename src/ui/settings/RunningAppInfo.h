#pragma once

#include <QIcon>
#include <QString>
#include <string>
#include <vector>

namespace tessarin {
class Workspace;
}

namespace tessarin::ui {

/// A running application that is offered for adding.
struct RunningAppInfo {
  std::string bundleID;
  QString name;  ///< the identifier where it has none
  QIcon icon;    ///< may be null
};

/// Those that run now, by name as the user's language sorts, capitals and small letters alike. One that is
/// there twice is listed twice.
std::vector<RunningAppInfo> runningApps(Workspace& workspace);

}  // namespace tessarin::ui
