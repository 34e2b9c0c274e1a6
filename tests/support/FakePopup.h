#pragma once

#include <utility>

#include "platform/PopupPresenter.h"
#include "platform/PopupSurface.h"

namespace tessarin::testing {

/// A popup that remembers what it was asked to show.
class FakePopupPresenter final : public PopupPresenter {
 public:
  void anticipate() override { ++anticipations; }
  void present(const PopupContent& content) override {
    presented.push_back(content);
    visible = true;
  }
  void hide() override {
    ++hides;
    visible = false;
  }
  bool isVisible() const override { return visible; }
  void onRowClicked(std::function<void(int)> callback) override { rowClicked_ = std::move(callback); }
  void onVariantClicked(std::function<void(int)> callback) override { variantClicked_ = std::move(callback); }
  void onContextRead(std::function<bool(const CaretContext&)> callback) override {
    readContext = std::move(callback);
  }

  void clickRow(int index) {
    if (rowClicked_) rowClicked_(index);
  }
  void clickVariant(int index) {
    if (variantClicked_) variantClicked_(index);
  }

  std::function<bool(const CaretContext&)> readContext;  ///< of the owner; empty while it wants nothing read
  std::vector<PopupContent> presented;
  int anticipations = 0;
  int hides = 0;
  bool visible = false;

 private:
  std::function<void(int)> rowClicked_;
  std::function<void(int)> variantClicked_;
};

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
