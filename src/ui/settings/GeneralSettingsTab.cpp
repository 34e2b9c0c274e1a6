#include "ui/settings/GeneralSettingsTab.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/Log.h"
#include "input/Preferences.h"
#include "platform/LoginItem.h"
#include "platform/UserDefaults.h"
#include "ui/style/Form.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

StyledLabel* makeHint() {
  auto* hint = new StyledLabel({}, TextStyle::caption, ColorRole::secondary);
  hint->wrapped();
  return hint;
}

}  // namespace

GeneralSettingsTab::GeneralSettingsTab(const SettingsServices& services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      launchAtLogin_(new QCheckBox(tr("Launch at login"))),
      showMenuBarIcon_(new QCheckBox(tr("Show menu bar icon"))),
      confirmsOnlyWhatIsMeant_(new QCheckBox(tr("Leave Return and Tab alone where a shortcode is unlikely"))),
      triggersOnlyAtWordStart_(new QCheckBox(tr("Only at the start of a word"))),
      triggers_(new QButtonGroup(this)),
      triggerHint_(makeHint()),
      updateHint_(makeHint()) {
  auto* form = new Form;
  form->addSection(tr("Startup"))->addWidget(makeLaunchToggle());
  QVBoxLayout* trigger = form->addSection(tr("Trigger Character"));
  trigger->addWidget(makeTriggerPicker());
  trigger->addWidget(triggerHint_);
  trigger->addWidget(confirmsOnlyWhatIsMeant_);
  trigger->addWidget(triggersOnlyAtWordStart_);
  bind(confirmsOnlyWhatIsMeant_, preferences::key::confirmsOnlyWhatIsMeant);
  bind(triggersOnlyAtWordStart_, preferences::key::triggersOnlyAtWordStart);
  form->addSection(tr("Appearance"))->addWidget(showMenuBarIcon_);
  bind(showMenuBarIcon_, preferences::key::showMenuBarIcon);
  QVBoxLayout* updates = form->addSection(tr("Updates"));
  updates->addWidget(makeVersionRow());
  updates->addWidget(updateHint_);
  updates->addWidget(makeUpdateButton(), 0, Qt::AlignLeading);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(tabPadding, tabPadding, tabPadding, tabPadding);
  layout->addWidget(form);
  showPreferences();
  preferences_ = services_.userDefaults.onChange([this] { showPreferences(); });
}

QWidget* GeneralSettingsTab::makeLaunchToggle() {
  launchAtLogin_->setChecked(services_.loginItem.isEnabled());
  connect(launchAtLogin_, &QCheckBox::toggled, this, &GeneralSettingsTab::changeLaunchAtLogin);
  return launchAtLogin_;
}

QWidget* GeneralSettingsTab::makeTriggerPicker() {
  auto* picker = new QWidget;
  auto* row = new QHBoxLayout(picker);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(20);
  row->addWidget(new QLabel(tr("Character")));
  for (const std::string_view choice : preferences::triggerChoices) {
    const QString character = QString::fromUtf8(choice.data(), static_cast<qsizetype>(choice.size()));
    auto* button = new QRadioButton(character);
    button->setAccessibleName(tr("Character %1").arg(character));
    triggers_->addButton(button);
    row->addWidget(button);
    connect(button, &QRadioButton::clicked, this, [this, character] {
      services_.userDefaults.set(preferences::key::triggerCharacter, character.toStdString());
    });
  }
  row->addStretch(1);
  return picker;
}

void GeneralSettingsTab::bind(QCheckBox* box, const char* preference) {
  connect(box, &QCheckBox::clicked, this,
          [this, preference](bool isChecked) { services_.userDefaults.set(preference, isChecked); });
}

QWidget* GeneralSettingsTab::makeVersionRow() {
  auto* version = new QWidget;
  auto* row = new QHBoxLayout(version);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(new StyledLabel("Tessarin", TextStyle::headline));
  row->addStretch(1);
  const QString text =
      tr("Version %1 (%2)")
          .arg(QString::fromStdString(services_.version), QString::fromStdString(services_.build));
  row->addWidget(new StyledLabel(text, TextStyle::body, ColorRole::secondary));
  return version;
}

QWidget* GeneralSettingsTab::makeUpdateButton() {
  auto* button = new QPushButton(tr("Check for Updates..."));
  connect(button, &QPushButton::clicked, this, [this] {
    if (services_.checkForUpdates) services_.checkForUpdates();
  });
  return button;
}

void GeneralSettingsTab::changeLaunchAtLogin(bool launchAtLogin) {
  LoginItem& item = services_.loginItem;
  const auto failure = launchAtLogin ? item.registerItem() : item.unregisterItem();
  if (!failure) return;
  log("Settings", "Failed to update launch at login: " + *failure);
  // Where this is a change, it comes here once more.
  launchAtLogin_->setChecked(item.isEnabled());
}

void GeneralSettingsTab::showPreferences() {
  const QString trigger =
      QString::fromStdString(services_.userDefaults.string(preferences::key::triggerCharacter)
                                 .value_or(preferences::defaultTriggerCharacter));
  // Another trigger than those offered is none of the choices.
  triggers_->setExclusive(false);
  for (QAbstractButton* button : triggers_->buttons()) button->setChecked(button->text() == trigger);
  triggers_->setExclusive(true);
  triggerHint_->setText(tr("Type %1shortcode%1 to trigger autocomplete").arg(trigger));
  updateHint_->setText(tr("System-wide %1shortcode%1 autocomplete for macOS").arg(trigger));
  showMenuBarIcon_->setChecked(services_.userDefaults.boolean(preferences::key::showMenuBarIcon)
                                   .value_or(preferences::showMenuBarIconWhenAbsent));
  confirmsOnlyWhatIsMeant_->setChecked(preferences::confirmsOnlyWhatIsMeant(services_.userDefaults));
  triggersOnlyAtWordStart_->setChecked(preferences::triggersOnlyAtWordStart(services_.userDefaults));
}

}  // namespace tessarin::ui
