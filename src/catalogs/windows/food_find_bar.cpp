#include "catalogs/windows/food_find_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "catalogs/food_catalog.h"
#include "core/session/failure_guard.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/text_field.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

FoodFindBar::FoodFindBar(Session &session, BoundGrid &foods, QWidget *parent)
    : QWidget(parent), session_(session), foods_(foods) {
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto *label = new QLabel(QStringLiteral("&Find in list:"), this);
  txtFind = new TextField(QStringLiteral("txtFind"), QStringLiteral("Find in list"), foodTextLength, this);
  txtFind->setClearButtonEnabled(true);
  txtFind->setMinimumWidth(FieldWidth(txtFind, 8));
  label->setBuddy(txtFind);
  cmdFind = new QPushButton(QStringLiteral("F&ind"), this);
  cmdFind->setObjectName(QStringLiteral("cmdFind"));
  cmdFind->setToolTip(QStringLiteral("Goes to the first food with this text in its description, then to the next."));
  cmdFind->setAutoDefault(false);
  layout->addWidget(label);
  layout->addWidget(txtFind, 1);
  layout->addWidget(cmdFind);
  connect(txtFind, &TextField::returnPressed, this, &FoodFindBar::OnFind);
  connect(cmdFind, &QPushButton::clicked, this, &FoodFindBar::OnFind);
}

void FoodFindBar::OnFind() {
  if (txtFind->text().isEmpty()) {
    txtFind->setFocus();
    return;
  }
  const FailureExit failure{QStringLiteral("frmAddMeal"), QStringLiteral("cmdFind_Click"),
                            QStringLiteral("Error Finding Food"),
                            QStringLiteral("An error occurred while looking for this food.")};
  FoodFinder::Result result;
  const bool looked = Guarded(
      session_, failure, [&] { result = finder_.Find(foods_.Model(), txtFind->text(), foods_.currentIndex().row()); });
  if (!looked) return;
  if (result.mealID) {
    foods_.GoToKey(*result.mealID);
  } else {
    session_.boxes.Inform(QStringLiteral("Find Food"), result.message);
  }
}

}  // namespace trimlog
