#include "platform/windows/grid/lookup_field.h"

#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/grid/grid_guard.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

LookupField::LookupField(Database &database, const GridLookup &lookup, const QLocale &locale, QWidget *parent)
    : QLineEdit(parent), database_(database), lookup_(lookup), locale_(locale) {
  connect(this, &QLineEdit::textEdited, this, &LookupField::LookFor);
}

LookupField::~LookupField() = default;

void LookupField::SetShown(const QVariant &key) {
  shown_.reset();
  if (key.isValid() && !key.isNull()) shown_ = key.toLongLong();
  chosen_.reset();
}

// The field keeps the focus; the list is a window that takes none.
void LookupField::MakeList() {
  list_ = std::make_unique<QFrame>(this, Qt::ToolTip | Qt::FramelessWindowHint);
  list_->setAttribute(Qt::WA_ShowWithoutActivating);
  list_->setFrameShape(QFrame::Box);
  list_->setObjectName(objectName() + QStringLiteral("List"));
  auto *layout = new QVBoxLayout(list_.get());
  layout->setContentsMargins(0, 0, 0, 0);
  grid_ = new BoundGrid(objectName() + QStringLiteral("Rows"), accessibleName(), locale_, list_.get());
  grid_->canDelete = false;
  grid_->canSort = false;
  grid_->setFocusPolicy(Qt::NoFocus);
  grid_->verticalHeader()->hide();
  grid_->SetColumns(lookup_.columns);
  grid_->horizontalHeader()->setVisible(lookup_.columns.size() > 1);
  grid_->SetSpareColumn(lookup_.columns.front().name);
  layout->addWidget(grid_);
  grid_->Open(database_, lookup_.source);
  connect(grid_, &QAbstractItemView::clicked, this, [this] {
    TakeCurrent();
    HideList();
    Q_EMIT Chosen();
  });
}

void LookupField::ShowList() {
  if (!list_) MakeList();
  if (list_->isVisible()) return;
  const QRect screenRect = screen()->availableGeometry();
  const int wanted =
      grid_->horizontalHeader()->length() + grid_->verticalScrollBar()->sizeHint().width() + 4 * list_->frameWidth();
  const int width = std::min(std::max(this->width(), wanted), screenRect.width());
  const int height = std::min(grid_->verticalHeader()->defaultSectionSize() * 12 + 30, screenRect.height() / 2);
  QPoint place = mapToGlobal(rect().bottomLeft());
  if (place.y() + height > screenRect.bottom()) place.setY(mapToGlobal(QPoint()).y() - height);
  place.setX(std::clamp(place.x(), screenRect.left(), std::max(screenRect.left(), screenRect.right() - width)));
  list_->setGeometry({place, QSize(width, height)});
  list_->show();
  if (const std::optional<qint64> key = chosen_ ? chosen_ : shown_) grid_->GoToKey(*key, true);
}

void LookupField::HideList() {
  if (list_) list_->hide();
}

void LookupField::LookFor(const QString &typed) {
  chosen_.reset();
  ShowList();
  if (typed.isEmpty()) return;
  RunGuarded(grid_->Model(), GridAction::Load, [&] {
    const int row = grid_->Model().FindPrefix(lookup_.text, typed);
    chosen_ = grid_->Model().KeyOfRow(row);
    if (chosen_) {
      grid_->GoToKey(*chosen_, true);
    } else {
      grid_->ClearMarks();
    }
  });
}

void LookupField::TakeCurrent() {
  chosen_ = grid_->CurrentKey();
  if (chosen_) setText(grid_->CurrentField(lookup_.text).toString());
  selectAll();
}

bool LookupField::MoveInList(QKeyEvent *event) {
  static constexpr int moves[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
  if (std::find(std::begin(moves), std::end(moves), event->key()) == std::end(moves)) return false;
  QKeyEvent inList(QEvent::KeyPress, event->key(), Qt::NoModifier);
  QCoreApplication::sendEvent(grid_, &inList);
  TakeCurrent();
  return true;
}

void LookupField::keyPressEvent(QKeyEvent *event) {
  const bool open = list_ && list_->isVisible();
  const bool altDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
  if (event->key() == Qt::Key_F4 || altDown) {
    open ? HideList() : ShowList();
  } else if (open && MoveInList(event)) {
    event->accept();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void LookupField::focusOutEvent(QFocusEvent *event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) HideList();
}

void LookupField::hideEvent(QHideEvent *event) {
  HideList();
  QLineEdit::hideEvent(event);
}

}  // namespace trimlog
