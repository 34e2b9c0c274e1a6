#include "ui/settings/SnippetEditorView.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "input/Preferences.h"
#include "model/SnippetStore.h"
#include "model/TemplateVariables.h"
#include "platform/UserDefaults.h"
#include "ui/settings/ReplacementEditor.h"
#include "ui/settings/ShortLabel.h"
#include "ui/settings/TriggerField.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int sheetWidth = 480;
constexpr int editorPadding = 16;
constexpr int fieldSpacing = 16;
constexpr int fieldRowSpacing = 8;
constexpr int blockSpacing = 4;
constexpr int previewLines = 3;
/// More than three lines hold.
constexpr qsizetype previewCharacters = 4000;

template <class Layout>
Layout* makeStack(int between) {
  auto* layout = new Layout;
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(between);
  return layout;
}

}  // namespace

SnippetEditorView::SnippetEditorView(const SettingsServices& services, std::optional<Snippet> editingSnippet,
                                     QWidget* parent)
    : QDialog(parent),
      services_(services),
      editingSnippet_(std::move(editingSnippet)),
      clipboard_(services.pasteboard),
      name_(new QLineEdit),
      trigger_(new TriggerField),
      keywords_(new QLineEdit),
      replacement_(new ReplacementEditor(tr("e.g., ¯\\_(ツ)_/¯ or multi-line text"))),
      preview_(new QWidget),
      previewTrigger_(new ShortLabel(1, TextStyle::monospacedBody, ColorRole::primary)),
      previewText_(new ShortLabel(previewLines, TextStyle::body, ColorRole::secondary)),
      cancel_(new QPushButton(tr("Cancel"))),
      confirm_(new QPushButton(editingSnippet_ ? tr("Save") : tr("Add"))) {
  const QString title = editingSnippet_ ? tr("Edit Snippet") : tr("New Snippet");
  setWindowTitle(title);
  auto* stack = new QVBoxLayout(this);
  stack->setContentsMargins(editorPadding, editorPadding, editorPadding, editorPadding);
  stack->setSpacing(fieldSpacing);
  stack->addWidget(&(new StyledLabel(title, TextStyle::headline))->centred());
  stack->addLayout(makeForm());
  stack->addLayout(makeReplacementBlock());
  stack->addWidget(makePreview());
  stack->addLayout(makeButtons());
  load();
  defaultsSubscription_ = services_.userDefaults.onChange([this] { showPreview(); });
}

QFormLayout* SnippetEditorView::makeForm() {
  auto* form = new QFormLayout;
  form->setVerticalSpacing(fieldRowSpacing);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  const struct {
    QString label;
    QString placeholder;
    QLineEdit* field;
  } rows[] = {
      {tr("Name"), tr("e.g., Shrug"), name_},
      {tr("Trigger"), tr("e.g., shrug"), trigger_},
      {tr("Keywords (comma-separated)"), tr("e.g., whatever, idk"), keywords_},
  };
  for (const auto& row : rows) {
    form->addRow(row.label, row.field);
    row.field->setPlaceholderText(row.placeholder);
    row.field->setAccessibleName(row.label);
    connect(row.field, &QLineEdit::textChanged, this, &SnippetEditorView::readFields);
  }
  return form;
}

QBoxLayout* SnippetEditorView::makeReplacementBlock() {
  auto* block = makeStack<QVBoxLayout>(blockSpacing);
  auto* label = new StyledLabel(tr("Replacement"), TextStyle::caption, ColorRole::secondary);
  label->setBuddy(replacement_);
  replacement_->setAccessibleName(label->text());
  auto* hint = new StyledLabel(tr("Available variables: {{date}}, {{time}}, {{datetime}}, {{clipboard}}"),
                               TextStyle::caption2, ColorRole::secondary);
  replacement_->setAccessibleDescription(hint->text());
  block->addWidget(label);
  block->addWidget(replacement_);
  block->addWidget(&hint->wrapped());
  connect(replacement_, &ReplacementEditor::replacementChanged, this, &SnippetEditorView::readFields);
  return block;
}

QWidget* SnippetEditorView::makePreview() {
  auto* block = makeStack<QVBoxLayout>(blockSpacing);
  auto* row = makeStack<QHBoxLayout>(blockSpacing * 2);
  previewTrigger_->setMaximumWidth(sheetWidth / 2 - editorPadding);
  row->addWidget(previewTrigger_, 0, Qt::AlignTop);
  row->addWidget(previewText_, 1, Qt::AlignTop);
  block->addWidget(new StyledLabel(tr("Preview"), TextStyle::caption, ColorRole::secondary));
  block->addLayout(row);
  preview_->setLayout(block);
  return preview_;
}

QBoxLayout* SnippetEditorView::makeButtons() {
  auto* row = makeStack<QHBoxLayout>(fieldSpacing);
  row->addWidget(cancel_);
  row->addStretch(1);
  row->addWidget(confirm_);
  confirm_->setDefault(true);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(confirm_, &QPushButton::clicked, this, &SnippetEditorView::confirm);
  for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
    // In the editor of several lines, Return alone makes a line.
    connect(new QShortcut(QKeySequence(Qt::CTRL | key), this), &QShortcut::activated, confirm_,
            &QPushButton::click);
  }
  return row;
}

void SnippetEditorView::load() {
  if (editingSnippet_) {
    const SnippetDraft loaded = SnippetDraft::of(*editingSnippet_);
    name_->setText(QString::fromStdString(loaded.name));
    trigger_->setText(QString::fromStdString(loaded.trigger));
    keywords_->setText(QString::fromStdString(loaded.keywords));
    replacement_->setReplacement(QString::fromStdString(loaded.replacement));
  }
  readFields();
}

void SnippetEditorView::readFields() {
  draft_ = {name_->text().toStdString(), trigger_->text().toStdString(),
            replacement_->replacement().toStdString(), keywords_->text().toStdString()};
  confirm_->setEnabled(draft_.isValid());
  showPreview();
}

void SnippetEditorView::showPreview() {
  preview_->setVisible(draft_.isValid());
  if (draft_.isValid()) {
    const std::string around = preferences::currentTriggerCharacter(services_.userDefaults);
    const std::string text = expandTemplateVariables(
        draft_.replacement,
        {.clock = services_.wallClock, .pasteboardText = [this] { return clipboard_.text(); }});
    previewTrigger_->setText(QString::fromStdString(around + draft_.trigger + around));
    previewText_->setText(QString::fromStdString(text).left(previewCharacters));
  }
  fitHeight();
}

void SnippetEditorView::fitHeight() {
  layout()->activate();
  const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(sheetWidth)
                                                   : layout()->totalSizeHint().height();
  setFixedSize(sheetWidth, height);
}

void SnippetEditorView::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  fitHeight();
}

void SnippetEditorView::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  // The clipboard and the time may have become others meanwhile.
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) showPreview();
}

void SnippetEditorView::confirm() {
  if (editingSnippet_) {
    services_.snippetStore.updateSnippet(draft_.makeSnippet(editingSnippet_->id));
  } else {
    services_.snippetStore.addSnippet(draft_.makeSnippet());
  }
  accept();
}

}  // namespace tessarin::ui
