#include "journal/windows/water_panel.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QSignalBlocker>

#include "core/session/session.h"
#include "journal/day/journal_day.h"
#include "journal/windows/day_grid.h"
#include "journal/windows/glass_picture.h"
#include "journal/windows/step_bar.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/field_left.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

WaterPanel::WaterPanel(Session &session, JournalDay &day, QWidget *parent)
    : QWidget(parent), session_(session), day_(day) {
  setObjectName(QStringLiteral("pnlWater"));
  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  picWater = new GlassPicture(this);
  layout->addWidget(picWater);
  lblWater1 = AddLabel(layout, QStringLiteral("lblWater1"), {});
  txtWater = new NumberField(QStringLiteral("txtWater"), QStringLiteral("Glasses of water"), session_.locale, this);
  txtWater->setFixedWidth(FieldWidth(txtWater, 4));
  txtWater->setToolTip(QStringLiteral("Up and Down count a glass more or less. (Alt+5)"));
  txtWater->installEventFilter(this);
  lblWater1->setBuddy(txtWater);
  connect(new QShortcut(Qt::ALT | Qt::Key_5, this), &QShortcut::activated, txtWater, [this] {
    txtWater->setFocus(Qt::ShortcutFocusReason);
    txtWater->selectAll();
  });
  layout->addWidget(txtWater);
  sclWater = new StepBar(QStringLiteral("sclWater"), QStringLiteral("A glass more or less"), this);
  layout->addWidget(sclWater);
  setEnabled(false);
  connect(sclWater, &QAbstractSlider::valueChanged, this, &WaterPanel::OnSpinner);
  connect(&day_, &JournalDay::DateChanged, this, [this] {
    if (!day_.IsSingleDate()) Follow();  // a day by itself comes as another scope
  });
  connect(&day_, &JournalDay::ScopeChanged, this, &WaterPanel::Follow);
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    const bool ours = change.table == Table::OtherDailyData && change.Concerns(session_.profile.CurrentPersonID);
    if (ours && !saving_ && !txtWater->isModified()) Follow();
  });
}

void WaterPanel::Follow() {
  if (SaveOpenEdit() != EditOutcome::Saved) return;
  const QDate date = day_.IsSingleDate() || !rowDate ? day_.Date() : rowDate();
  if (!date.isValid()) return;
  const bool read = Guarded(session_, LoadDayFailure(txtWater->objectName()),
                            [&] { record_ = LoadWaterRecord(session_, date, day_.Date()); });
  if (!read) return;
  setEnabled(true);
  const QSignalBlocker quiet(sclWater);
  sclWater->setValue(0);
  lastSpinner_ = 0;
  Show();
}

void WaterPanel::Show() {
  txtWater->SetNumber(record_.WaterConsumed);
  txtWater->setModified(false);
  picWater->ShowGlasses(record_.WaterConsumed);
  lblWater1->setText(day_.IsSingleDate()
                         ? QStringLiteral("Glasses of water:")
                         : QStringLiteral("Water on %1:").arg(ShortDate(record_.ThisDate, session_.locale)));
}

EditOutcome WaterPanel::SaveOpenEdit() {
  return txtWater->isModified() ? Save(GlassesOf(txtWater->text(), session_.locale)) : EditOutcome::Saved;
}

void WaterPanel::DropOpenEdit() { Show(); }

EditOutcome WaterPanel::Save(double glasses) {
  if (saving_) return EditOutcome::Saved;
  WaterRecord wanted = record_;
  wanted.WaterConsumed = glasses;
  if (glasses != record_.WaterConsumed) {
    saving_ = true;
    const bool saved = Guarded(session_, SaveDayFailure(txtWater->objectName()),
                               [&] { SaveWater(session_, wanted, wanted.ThisDate); });
    saving_ = false;
    if (!saved) return EditOutcome::Failed;
  }
  record_ = wanted;
  Show();
  return EditOutcome::Saved;
}

void WaterPanel::Step(bool more) { Save(StepWater(txtWater->text(), more, session_.locale)); }

// The spinner is a scroll bar by nature: upwards is less for it and a glass more for the person.
void WaterPanel::OnSpinner(int value) {
  const bool more = value < lastSpinner_;
  lastSpinner_ = value;
  Step(more);
}

bool WaterPanel::eventFilter(QObject *watched, QEvent *event) {
  if (watched == txtWater && event->type() == QEvent::FocusOut) {
    // A box cannot open while the focus is on its way.
    if (txtWater->isModified()) QMetaObject::invokeMethod(this, &WaterPanel::SaveOpenEdit, Qt::QueuedConnection);
  }
  if (watched != txtWater || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
      Step(static_cast<QKeyEvent *>(event)->key() == Qt::Key_Up);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      SaveOpenEdit();
      txtWater->selectAll();
      return true;
    case Qt::Key_Escape:
      if (!txtWater->isModified()) return false;
      DropOpenEdit();
      txtWater->selectAll();
      return true;
    default:
      return false;
  }
}

}  // namespace trimlog
