#include "core/windows/setup/setup_other_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/settings/options.h"
#include "core/windows/controls/door_control.h"
#include "platform/windows/controls/named_controls.h"

namespace trimlog {

SetupOtherPage::SetupOtherPage(Session &session, const Navigator &navigator, QWidget *parent) : SetupPage(parent) {
  auto *layout = new QVBoxLayout(this);
  chkShowSplash = AddCheck(layout, QStringLiteral("chkShowSplash"),
                           QStringLiteral("&Show the opening picture when the program starts"));
  auto *group = new QGroupBox(QStringLiteral("Window size and position"), this);
  auto *inner = new QVBoxLayout(group);
  AddNote(inner, QStringLiteral("lblResetNote"),
          QStringLiteral("Puts a window back to the size and position that it had when the program was new."));
  auto *row = new QHBoxLayout;
  inner->addLayout(row);
  auto *cmdResetMain =
      AddCommand(row, QStringLiteral("cmdResetMain"), QStringLiteral("Reset &Main Window"),
                 QStringLiteral("Brings the main window back to its first size, in the middle of the screen."));
  NeedsDoor(*cmdResetMain, navigator.ResetMainWindow);
  connect(cmdResetMain, &QPushButton::clicked, this, [&navigator] { navigator.ResetMainWindow(); });
  auto *cmdResetQJ = AddCommand(row, QStringLiteral("cmdResetQJ"), QStringLiteral("Reset &Quick Journal"),
                                QStringLiteral("Brings the Quick Journal back to its first size and place."));
  connect(cmdResetQJ, &QPushButton::clicked, this, [&session, &navigator] {
    ResetQuickJournalPlace(session);
    if (navigator.ResetQuickJournal) navigator.ResetQuickJournal();
  });
  row->addStretch();
  layout->addWidget(group);
  layout->addStretch();
}

void SetupOtherPage::Load(const Settings &settings) { chkShowSplash->setChecked(settings.ShowSplash); }

void SetupOtherPage::Store(Settings &edited) { edited.ShowSplash = chkShowSplash->isChecked(); }

}  // namespace trimlog
