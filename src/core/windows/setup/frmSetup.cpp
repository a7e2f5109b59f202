#include "core/windows/setup/frmSetup.h"

#include <QTabWidget>
#include <QVBoxLayout>

#include "core/session/failure_guard.h"
#include "core/settings/options.h"
#include "platform/windows/controls/ok_cancel.h"

namespace trimlog {

frmSetup::frmSetup(Session &session, const Navigator &navigator, const QList<SetupPageMaker> &roomPages, QWidget *owner)
    : QDialog(owner), session_(session) {
  setObjectName(QStringLiteral("frmSetup"));
  setWindowTitle(QStringLiteral("Program Options"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(true);

  auto *layout = new QVBoxLayout(this);
  SSTab1 = new QTabWidget(this);
  SSTab1->setObjectName(QStringLiteral("SSTab1"));
  SSTab1->setAccessibleName(QStringLiteral("Options"));
  layout->addWidget(SSTab1);

  const FailureExit failure{QStringLiteral("frmSetup"), QStringLiteral("Form_Load"),
                            QStringLiteral("Error Loading Setup Info"),
                            QStringLiteral("An error occurred while loading your setup information.")};
  Guarded(session_, failure, [&] {
    RereadNutrientID(session_);
    AddPages(CoreSetupPages() + roomPages, navigator);
  });
  AddOkCancel(*this, layout, [this] { OnOk(); });
}

void frmSetup::AddPages(const QList<SetupPageMaker> &makers, const Navigator &navigator) {
  QList<SetupPageMaker> ordered = makers;
  std::stable_sort(ordered.begin(), ordered.end(), [](const auto &a, const auto &b) { return a.tab < b.tab; });
  for (const SetupPageMaker &maker : ordered) {
    SetupPage *page = maker.Make(session_, navigator, SSTab1);
    pages_.append(page);
    tabs_.append(maker.tab);
    SSTab1->addTab(page, maker.caption);
    page->Load(session_.settings);
    page->ShowUnits(session_.settings.UomID);
  }
  for (SetupPage *source : pages_) {
    for (SetupPage *page : pages_) connect(source, &SetupPage::UomChanged, page, &SetupPage::ShowUnits);
  }
}

void frmSetup::ShowTab(SetupTab tab) {
  const auto index = tabs_.indexOf(tab);
  if (index >= 0) SSTab1->setCurrentIndex(static_cast<int>(index));
}

bool frmSetup::ValidateFields() {
  for (SetupPage *page : pages_) {
    if (page->Validate()) continue;
    SSTab1->setCurrentWidget(page);
    if (QWidget *faulty = page->focusWidget()) faulty->setFocus();
    return false;
  }
  return true;
}

void frmSetup::OnOk() {
  if (!ValidateFields()) return;
  for (SetupPage *page : pages_) {
    if (!page->Save()) return;
  }
  Settings edited = session_.settings;
  for (SetupPage *page : pages_) page->Store(edited);
  StoreOptions(session_, edited);
  accept();
}

}  // namespace trimlog
