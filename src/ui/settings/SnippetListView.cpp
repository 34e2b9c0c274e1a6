#include "ui/settings/SnippetListView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

#include "ui/settings/SnippetListModel.h"
#include "ui/style/Symbol.h"

namespace tessarin::ui {

using HotButton = SnippetRowDelegate::HotButton;

SnippetListView::SnippetListView(QWidget* parent)
    : QListView(parent),
      edit_(makeButton(RowButton::edit, tr("Edit"))),
      remove_(makeButton(RowButton::remove, {})),
      delegate_(new SnippetRowDelegate(*edit_, *remove_, this)) {
  edit_->setObjectName("editRow");
  remove_->setObjectName("deleteRow");
  remove_->setIcon(symbolIcon("trash", ColorRole::red));
  remove_->setToolTip(tr("Delete"));
  setItemDelegate(delegate_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setMouseTracking(true);
  setAccessibleName(tr("Custom Snippets"));
  setTabOrder(this, edit_);
  setTabOrder(edit_, remove_);
}

QPushButton* SnippetListView::makeButton(RowButton button, const QString& text) {
  auto* made = new QPushButton(text, viewport());
  made->setAutoDefault(false);
  made->hide();
  connect(made, &QPushButton::clicked, this, [this, button] { request(button, currentIndex()); });
  return made;
}

void SnippetListView::setModel(QAbstractItemModel* model) {
  QListView::setModel(model);
  connect(model, &QAbstractItemModel::modelReset, this, &SnippetListView::placeButtons);
  connect(model, &QAbstractItemModel::rowsRemoved, this, &SnippetListView::placeButtons,
          Qt::QueuedConnection);
  placeButtons();
}

SnippetRow SnippetListView::row(const QModelIndex& index) const {
  return {visualRect(index), delegate_->buttonSizes(), layoutDirection()};
}

HotButton SnippetListView::buttonAt(const QPoint& point) const {
  const QModelIndex index = indexAt(point);
  if (!index.isValid()) return {};
  const RowButton button = row(index).buttonAt(point);
  return button == RowButton::none ? HotButton{} : HotButton{index, button, false};
}

void SnippetListView::setHot(const HotButton& hot) {
  if (hot == hot_) return;
  update(hot_.index);
  update(hot.index);
  hot_ = hot;
  delegate_->setHot(hot);
}

void SnippetListView::request(RowButton button, const QModelIndex& index) {
  if (!index.isValid()) return;
  if (button == RowButton::edit) Q_EMIT editRequested(index);
  if (button == RowButton::remove) Q_EMIT deleteRequested(index);
}

void SnippetListView::mousePressEvent(QMouseEvent* event) {
  HotButton pressed = buttonAt(event->pos());
  pressed.isPressed = pressed.button != RowButton::none && event->button() == Qt::LeftButton;
  setHot(pressed);
  QListView::mousePressEvent(event);
}

void SnippetListView::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) setHot(buttonAt(event->pos()));
  QListView::mouseMoveEvent(event);
}

void SnippetListView::mouseReleaseEvent(QMouseEvent* event) {
  const HotButton pressed = hot_;
  const HotButton under = buttonAt(event->pos());
  setHot(under);
  QListView::mouseReleaseEvent(event);
  const bool isSame = under.index == pressed.index && under.button == pressed.button;
  if (pressed.isPressed && isSame && event->button() == Qt::LeftButton) {
    request(pressed.button, pressed.index);
  }
}

bool SnippetListView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) setHot({});
  return QListView::viewportEvent(event);
}

void SnippetListView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
      return request(RowButton::edit, currentIndex());
    case Qt::Key_Delete:
      return request(RowButton::remove, currentIndex());
    default:
      QListView::keyPressEvent(event);
  }
}

void SnippetListView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  if (!currentIndex().isValid() && model() != nullptr) setCurrentIndex(indexAt(QPoint(1, 1)));
}

void SnippetListView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    scheduleDelayedItemsLayout();
  }
}

void SnippetListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  placeButtons();
}

void SnippetListView::updateGeometries() {
  QListView::updateGeometries();
  placeButtons();
}

void SnippetListView::scrollContentsBy(int dx, int dy) {
  QListView::scrollContentsBy(dx, dy);
  placeButtons();
}

void SnippetListView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                  const QList<int>& roles) {
  QListView::dataChanged(topLeft, bottomRight, roles);
  describeButtons();
}

void SnippetListView::placeButtons() {
  const QModelIndex current = currentIndex();
  if (current.isValid()) {
    const SnippetRow place = row(current);
    edit_->setGeometry(place.edit);
    remove_->setGeometry(place.remove);
    describeButtons();
  }
  edit_->setVisible(current.isValid());
  remove_->setVisible(current.isValid());
}

void SnippetListView::describeButtons() {
  const QString trigger = currentIndex().data(SnippetListModel::triggerRole).toString();
  edit_->setAccessibleName(tr("Edit %1").arg(trigger));
  remove_->setAccessibleName(tr("Delete %1").arg(trigger));
}

}  // namespace tessarin::ui
