// What a person sees of every window: controls stand beside each other, inside what holds them, with their whole text.

#include "app_windows/every_window.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

/// Controls that arrange their own parts.
bool IsWhole(const QWidget &widget) {
  for (const char *whole : {"QComboBox", "QAbstractSpinBox", "QLineEdit", "QAbstractItemView", "QCalendarWidget",
                            "QMenuBar", "QTextEdit", "QTabBar", "QScrollBar", "QAbstractButton", "QLabel"}) {
    if (widget.inherits(whole)) return true;
  }
  return false;
}

QList<QWidget *> ShownChildren(const QWidget &parent) {
  QList<QWidget *> shown;
  for (QObject *child : parent.children()) {
    auto *widget = qobject_cast<QWidget *>(child);
    const bool grip = widget && widget->inherits("QSizeGrip");  // lies over the corner
    if (widget && !grip && !widget->isWindow() && widget->isVisible()) shown.append(widget);
  }
  return shown;
}

QSize RoomOfText(const QWidget &widget) {
  if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
    if (label->text().isEmpty() || label->inherits("trimlog::FitLabel")) return {};
    return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
  }
  if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
    return button->text().isEmpty() ? QSize() : button->minimumSizeHint();
  if (const auto *box = qobject_cast<const QGroupBox *>(&widget)) return {box->minimumSizeHint().width(), 0};
  if (widget.inherits("QLineEdit") || widget.inherits("QComboBox")) return {0, widget.fontMetrics().height()};
  return {};
}

bool TakesInput(const QWidget &widget) {
  for (const char *input :
       {"QComboBox", "QAbstractSpinBox", "QLineEdit", "QAbstractItemView", "QPushButton", "QCheckBox", "QTextEdit"}) {
    if (widget.inherits(input)) return widget.isEnabled();
  }
  return false;
}

std::string Place(const QWidget &widget) {
  const QRect place = widget.geometry();
  return QStringLiteral("%1 %2 \"%3\" at %4,%5 %6x%7")
      .arg(widget.metaObject()->className(), widget.objectName(), widget.property("text").toString())
      .arg(place.x())
      .arg(place.y())
      .arg(place.width())
      .arg(place.height())
      .toStdString();
}

void CheckText(const QWidget &widget) {
  const QSize needed = RoomOfText(widget);
  EXPECT_GE(widget.width(), needed.width()) << "cut off: " << Place(widget);
  EXPECT_GE(widget.height(), needed.height()) << "cut off: " << Place(widget);
}

void CheckKeys(const QWidget &widget) {
  EXPECT_TRUE(!TakesInput(widget) || (widget.focusPolicy() & Qt::TabFocus)) << "not by keys: " << Place(widget);
  const auto *button = qobject_cast<const QPushButton *>(&widget);
  EXPECT_TRUE(!button || !button->autoDefault() || button->isDefault() || button->objectName() == "cmdNo" ||
              widget.parent()->inherits("QDialogButtonBox"))
      << "takes Enter from the default button: " << Place(widget);
  const auto *label = qobject_cast<const QLabel *>(&widget);
  EXPECT_TRUE(!label || label->textFormat() != Qt::AutoText || !Qt::mightBeRichText(label->text()))
      << "guesses what is markup: " << Place(widget);
}

bool IsBlank(QWidget &widget) {
  const QImage picture = widget.grab().toImage();
  QImage plain = picture;
  plain.fill(picture.pixelColor(0, 0));
  return picture == plain;
}

void CheckContrast(QWidget &widget) {
  const auto *button = qobject_cast<const QAbstractButton *>(&widget);
  const auto *label = qobject_cast<const QLabel *>(&widget);
  if (!widget.isEnabled() || (!button && !(label && !label->text().isEmpty()))) return;
  EXPECT_FALSE(label && !label->text().trimmed().isEmpty() && IsBlank(widget)) << "not painted: " << Place(widget);
  const QPalette &palette = widget.palette();
  EXPECT_GE(ContrastRatio(palette.color(widget.foregroundRole()), palette.color(widget.backgroundRole())), 4.0)
      << "hard to read: " << Place(widget);
}

void CheckInside(const QWidget &parent) {
  const bool scrolls = parent.objectName() == "qt_scrollarea_viewport" || parent.inherits("trimlog::BodyTotals");
  const QList<QWidget *> children = ShownChildren(parent);
  for (qsizetype i = 0; i < children.size(); ++i) {
    QWidget &child = *children[i];
    EXPECT_TRUE(scrolls || parent.rect().contains(child.geometry())) << "outside: " << Place(child);
    for (qsizetype j = i + 1; j < children.size(); ++j) {
      EXPECT_FALSE(child.geometry().intersects(children[j]->geometry()))
          << Place(child) << " overlaps " << Place(*children[j]);
    }
    CheckText(child);
    CheckKeys(child);
    CheckContrast(child);
    if (!IsWhole(child)) CheckInside(child);
  }
}

/// No two controls that show answer to the same access key.
void CheckAccessKeys(const QWidget &window) {
  QHash<QString, const QWidget *> owners;
  for (const QWidget *widget : window.findChildren<QWidget *>()) {
    if (!widget->isVisible() || !widget->isEnabled()) continue;
    const auto *label = qobject_cast<const QLabel *>(widget);
    const bool speaks = label ? label->buddy() != nullptr : widget->inherits("QAbstractButton");
    const QString key = speaks ? QKeySequence::mnemonic(widget->property("text").toString()).toString() : QString();
    if (key.isEmpty()) continue;
    EXPECT_FALSE(owners.contains(key)) << key.toStdString() << " of " << Place(*widget) << " and also "
                                       << Place(*owners.value(key));
    owners.insert(key, widget);
  }
}

/// All that the window can show: the pages of its tabs, the steps of a wizard.
void CheckAllPages(QWidget &window) {
  CheckInside(window);
  CheckAccessKeys(window);
  for (QStackedWidget *stack : window.findChildren<QStackedWidget *>()) {
    for (int page = stack->count() - 1; page >= 0; --page) {
      auto *tabs = qobject_cast<QTabWidget *>(stack->parentWidget());
      if (tabs) {
        tabs->setCurrentIndex(page);
      } else {
        stack->setCurrentIndex(page);
      }
      QApplication::processEvents();
      CheckInside(window);
      CheckAccessKeys(window);
    }
  }
}

class Layout : public testing::TestWithParam<Room> {
 protected:
  ~Layout() override { QApplication::setFont(font_); }
  const QFont font_ = QApplication::font();
};

TEST_P(Layout, LeavesEveryControlItsPlaceAndItsText) {
  for (const double points : {font_.pointSizeF(), 15.0}) {
    SCOPED_TRACE(points);
    QFont font = font_;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    House house;
    const QSet<QWidget *> former = [] {
      const QWidgetList all = QApplication::topLevelWidgets();
      return QSet<QWidget *>(all.begin(), all.end());
    }();
    const std::unique_ptr<QWidget> window = GetParam().open(house);
    window->show();
    QApplication::processEvents();
    CheckAllPages(*window);
    for (const QWidget *other : QApplication::topLevelWidgets()) {
      const bool stray = !former.contains(const_cast<QWidget *>(other)) && other != window.get() && !other->parent() &&
                         other->windowType() == Qt::Window;
      EXPECT_FALSE(stray) << "in no window: " << Place(*other);
    }
  }
}

/// The last column of a list that has a caption: none that takes what the others leave.
int ColumnToWiden(const BoundGrid &grid) {
  int column = grid.Model().columnCount() - 1;
  while (column > 0 && (grid.isColumnHidden(column) || grid.Model().Columns()[column].caption.isEmpty())) --column;
  return column;
}

TEST_P(Layout, ItsListsComeBackAsWideAsTheyWereMade) {
  House house;
  std::unique_ptr<QWidget> window = GetParam().open(house);
  window->show();
  QMap<QString, int> widths;
  for (BoundGrid *grid : window->findChildren<BoundGrid *>()) {
    if (!grid->isVisible() || grid->objectName() == "grdPeople") continue;  // two short columns
    const int column = ColumnToWiden(*grid);
    widths[grid->objectName()] = grid->columnWidth(column) + 17;
    grid->setColumnWidth(column, widths[grid->objectName()]);
  }
  window->close();
  window = GetParam().open(house);
  window->show();
  for (const auto &[name, width] : widths.toStdMap()) {
    const auto &grid = Find<BoundGrid>(*window, name);
    EXPECT_EQ(grid.columnWidth(ColumnToWiden(grid)), width) << name.toStdString();
  }
}

/// Without the focus, which blinks.
QImage PictureOf(QWidget &window) {
  window.show();
  QApplication::processEvents();
  if (QWidget *focus = window.focusWidget()) focus->clearFocus();
  QApplication::processEvents();
  return window.grab().toImage();
}

TEST_P(Layout, FollowsADesktopThatTurnsDark) {
  const QPalette before = QApplication::palette();
  House house;
  const std::unique_ptr<QWidget> turned = GetParam().open(house);
  PictureOf(*turned);
  QApplication::setPalette(QPalette(QColor(0x2A, 0x2E, 0x32)));
  const QImage picture = PictureOf(*turned);
  CheckInside(*turned);
  turned->hide();
  const bool same = picture == PictureOf(*GetParam().open(house));
  QApplication::setPalette(before);
  EXPECT_TRUE(same) << "looks otherwise than one that was opened on the dark desktop";
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, Layout, testing::ValuesIn(EveryWindow()), NameOf);

}  // namespace
}  // namespace trimlog
