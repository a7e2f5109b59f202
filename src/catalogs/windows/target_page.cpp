#include "catalogs/windows/target_page.h"

#include <QFormLayout>

#include "catalogs/target_sets.h"
#include "core/session/failure_guard.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int longestTargetName = 255;

}  // namespace

TargetPage::TargetPage(Session &session, QWidget *parent) : AddRecPage(parent), session_(session) {
  setObjectName(QStringLiteral("pnlAddRec(7)"));
  auto *form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  txtTargetDesc =
      new TextField(QStringLiteral("txtTargetDesc"), QStringLiteral("Description"), longestTargetName, this);
  txtTargetDesc->setMinimumWidth(txtTargetDesc->fontMetrics().averageCharWidth() * 44);
  form->addRow(QStringLiteral("&Description:"), txtTargetDesc);
  setFocusProxy(txtTargetDesc);
}

QString TargetPage::Title() const { return QStringLiteral("Create a New Set of Nutrition Targets"); }

QString TargetPage::Header() const {
  return QStringLiteral("Enter a description for your new set of targets and click <OK>.");
}

bool TargetPage::Store() {
  const QString description = txtTargetDesc->text().trimmed();
  if (description.isEmpty()) {
    session_.boxes.Critical(QStringLiteral("Description Required"),
                            QStringLiteral("Please enter a description for this nutritional target."));
    txtTargetDesc->setFocus();
    return false;
  }
  const FailureExit failure{QStringLiteral("basMain"), QStringLiteral("AddRec"), QStringLiteral("Error Saving Targets"),
                            QStringLiteral("An error occurred while saving this set of targets.  "), true};
  return Guarded(session_, failure, [&] { targetID_ = AddTargetSet(session_, description); });
}

}  // namespace trimlog
