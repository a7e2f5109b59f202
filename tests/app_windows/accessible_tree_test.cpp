// What a screen reader finds in every window of the program, walked widget by widget.

#include "app_windows/every_window.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

/// Qt's own parts of a control: the control speaks for them.
bool IsPartOfControl(const QWidget *widget) {
  if (widget->objectName().startsWith("qt_")) return true;
  const QWidget *parent = widget->parentWidget();
  for (const char *whole : {"QComboBox", "QAbstractSpinBox", "QHeaderView", "QCalendarWidget", "QMenuBar"}) {
    if (parent && parent->inherits(whole)) return true;
  }
  return widget->inherits("QComboBoxPrivateContainer") || (parent && parent->inherits("QComboBoxPrivateContainer")) ||
         widget->inherits("QHeaderView");
}

bool HasLabel(const QAccessibleInterface &control) {
  for (const auto &[label, relation] : control.relations(QAccessible::Label)) {
    if (relation.testFlag(QAccessible::Label) && !label->text(QAccessible::Name).isEmpty()) return true;
  }
  return false;
}

QStringList MuteTicks(const QAbstractItemView &view) {
  QStringList faults;
  const QAbstractItemModel *model = view.model();
  if (!model) return faults;
  for (int row = 0; row < std::min(3, model->rowCount()); ++row) {
    for (int column = 0; column < model->columnCount(); ++column) {
      const QModelIndex cell = model->index(row, column);
      if (!cell.data(Qt::CheckStateRole).isValid()) continue;
      if (cell.data(Qt::AccessibleTextRole).toString().isEmpty() && cell.data(Qt::DisplayRole).toString().isEmpty())
        faults.append(QStringLiteral("mute tick in column %1").arg(column));
    }
  }
  faults.removeDuplicates();
  return faults;
}

/// What is wrong with one widget; empty for nothing.
QStringList FaultsOf(QWidget *widget) {
  if (const auto *label = qobject_cast<QLabel *>(widget)) {
    const bool differs =
        !label->text().isEmpty() && !label->accessibleName().isEmpty() && label->accessibleName() != label->text();
    return differs ? QStringList("a label whose name is not its text") : QStringList();
  }
  const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
  if (!spoken) return {};
  if (qobject_cast<QComboBox *>(widget) && !HasLabel(*spoken)) return {"a choice without a label"};
  QStringList faults;
  const bool isControl = (widget->focusPolicy() & Qt::TabFocus) && !widget->inherits("QScrollArea") &&
                         !widget->inherits("QStackedWidget") && !widget->inherits("QTabWidget");
  if (isControl && spoken->text(QAccessible::Name).isEmpty() && !HasLabel(*spoken))
    faults.append("a control without a name");
  if (const auto *view = qobject_cast<QAbstractItemView *>(widget)) faults += MuteTicks(*view);
  return faults;
}

class AccessibleTree : public testing::TestWithParam<Room> {
 protected:
  AccessibleTree() { QAccessible::setActive(true); }
  ~AccessibleTree() override { QAccessible::setActive(false); }
};

TEST_P(AccessibleTree, NamesEveryControlAndHidesNoText) {
  House house;
  const std::unique_ptr<QWidget> window = GetParam().open(house);
  window->show();
  QApplication::processEvents();
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(window.get())->text(QAccessible::Name).isEmpty());
  int seen = 0;
  for (QWidget *widget : window->findChildren<QWidget *>()) {
    if (IsPartOfControl(widget)) continue;
    ++seen;
    for (const QString &fault : FaultsOf(widget)) {
      ADD_FAILURE() << widget->metaObject()->className() << " " << qPrintable(widget->objectName()) << ": "
                    << qPrintable(fault);
    }
  }
  EXPECT_GT(seen, 1);
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, AccessibleTree, testing::ValuesIn(EveryWindow()), NameOf);

}  // namespace
}  // namespace trimlog
