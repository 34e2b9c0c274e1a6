#include "platform/qt/QtScreens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "platform/qt/RandrMonitors.h"

namespace tessarin::ui {
namespace {

Rect intersection(const Rect& a, const Rect& b) {
  const double x = std::max(a.minX(), b.minX());
  const double y = std::max(a.minY(), b.minY());
  return {x, y, std::min(a.maxX(), b.maxX()) - x, std::min(a.maxY(), b.maxY()) - y};
}

/// A work area that leaves nothing of the monitor says nothing about it.
Rect visiblePart(const Rect& frame, const std::optional<Rect>& workArea) {
  if (!workArea) return frame;
  const Rect visible = intersection(frame, *workArea);
  return visible.width > 0 && visible.height > 0 ? visible : frame;
}

Rect fromQt(const QRect& rect) {
  return {static_cast<double>(rect.x()), static_cast<double>(rect.y()), static_cast<double>(rect.width()),
          static_cast<double>(rect.height())};
}

CoordinateSpace spaceFor(const std::vector<Rect>& frames) {
  const double scale = qGuiApp->devicePixelRatio();
  return {scale, frames.empty() ? 0 : frames.front().height / scale};
}

std::vector<Screen> screensOf(const monitors::Desktop& desktop) {
  const CoordinateSpace points = spaceFor(desktop.frames);
  std::vector<Screen> found;
  found.reserve(desktop.frames.size());
  for (const Rect& frame : desktop.frames) {
    found.push_back({points.flipped(points.toPoints(frame)),
                     points.flipped(points.toPoints(visiblePart(frame, desktop.workArea)))});
  }
  return found;
}

std::vector<Screen> screensOfQt() {
  std::vector<Screen> found;
  if (QGuiApplication::screens().isEmpty()) return found;
  const CoordinateSpace points(1, QGuiApplication::primaryScreen()->geometry().height());
  for (const QScreen* screen : QGuiApplication::screens()) {
    found.push_back(
        {points.flipped(fromQt(screen->geometry())), points.flipped(fromQt(screen->availableGeometry()))});
  }
  return found;
}

}  // namespace

std::vector<Screen> QtScreens::screens() {
  const auto* desktop = watch_.desktop();
  return desktop != nullptr ? screensOf(*desktop) : screensOfQt();
}

std::optional<Screen> QtScreens::mainScreen() {
  const auto all = screens();
  if (all.empty()) return std::nullopt;
  const auto* desktop = watch_.desktop();
  if (all.size() == 1 || desktop == nullptr || !desktop->activeWindow) return all.front();
  const auto centre = monitors::centreOf(*qtConnection(), *desktop->activeWindow);
  if (!centre) return all.front();
  const CoordinateSpace points = spaceFor(desktop->frames);
  const Rect spot = points.flipped(points.toPoints({centre->x, centre->y, 0, 0}));
  const auto found = std::ranges::find_if(all, [&](const Screen& screen) {
    return screen.frame.contains({spot.x, spot.y});
  });
  return found != all.end() ? *found : all.front();
}

Point QtScreens::mouseLocation() {
  const CoordinateSpace points = space();
  const auto x = qtConnection();
  const auto pixels = x ? monitors::pointer(*x) : std::nullopt;
  if (!pixels) return points.flipped(Point{QCursor::pos().x() * 1.0, QCursor::pos().y() * 1.0});
  return points.flipped(Point{pixels->x / points.scale(), pixels->y / points.scale()});
}

CoordinateSpace QtScreens::space() {
  if (const auto* desktop = watch_.desktop()) return spaceFor(desktop->frames);
  const QScreen* primary = QGuiApplication::primaryScreen();
  return {qGuiApp->devicePixelRatio(), primary == nullptr ? 0.0 : primary->geometry().height()};
}

bool QtScreens::isComposited() {
  const auto* desktop = watch_.desktop();
  return desktop != nullptr && desktop->isComposited;
}

}  // namespace tessarin::ui
