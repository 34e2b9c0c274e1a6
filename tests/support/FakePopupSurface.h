#pragma once

#include <utility>

#include "platform/PopupSurface.h"

namespace tessarin::testing {

/// Records what was shown where.
class FakePopupSurface final : public PopupSurface {
 public:
  struct Shown {
    PopupContent content;
    Rect frame;
  };

  void prepare(const PopupContent& content) override { prepared = content; }
  void show(const PopupContent& content, const Rect& frame) override {
    shows.push_back({content, frame});
    isShown = true;
  }
  void hide() override {
    ++hides;
    isShown = false;
  }
  void onRowClicked(std::function<void(int)> callback) override { clickRow = std::move(callback); }
  void onVariantClicked(std::function<void(int)> callback) override { clickVariant = std::move(callback); }

  PopupContent prepared;
  std::vector<Shown> shows;
  int hides = 0;
  bool isShown = false;
  std::function<void(int)> clickRow;
  std::function<void(int)> clickVariant;
};

}  // namespace tessarin::testing
