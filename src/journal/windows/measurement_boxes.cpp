#include "journal/windows/measurement_boxes.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "core/session/session.h"
#include "core/windows/controls/figure_field.h"
#include "health/body_formulas.h"
#include "journal/windows/day_grid.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/field_left.h"
#include "platform/windows/controls/leave_check.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

namespace {

constexpr const char *sizeCaptions[] = {"Chest",    "&Waist", "Hips",  "&Biceps",
                                        "F&orearm", "Thi&gh", "C&alf", "Body Fat"};
constexpr int smallRows = 4;

QString ControlName(const char *prefix, std::size_t field, int place) {
  return QStringLiteral("%1%2%3").arg(QLatin1String(prefix), QLatin1String(measurementFields[field].column)).arg(place);
}

QString SpokenName(std::size_t field) { return QString::fromLatin1(sizeCaptions[field]).remove(QLatin1Char('&')); }

}  // namespace

MeasurementBoxes::MeasurementBoxes(Session &session, bool small, QWidget *parent)
    : QWidget(parent), session_(session), small_(small) {
  setObjectName(QStringLiteral("pnlMeasurements"));
  for (std::size_t field = 0; field < measurementFields.size(); ++field) boxes_[field] = MakeBox(field);
  if (small_) {
    LayOutSmall();
  } else {
    LayOutRows();
  }
  ShowUnits();
  connect(&session_.changes, &DataChanges::SettingsChanged, this, [this] {
    FollowBodyFatSetting();
    ShowUnits();
    ShowDifferences();
  });
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    const bool ours = change.table == Table::Measurements && change.Concerns(session_.profile.CurrentPersonID);
    if (ours && date_.isValid() && !saving_) Read(true);
  });
}

NumberField *MeasurementBoxes::MakeBox(std::size_t field) {
  auto *box = new NumberField(ControlName("txt", field, 1), SpokenName(field), session_.locale, this);
  box->setFixedWidth(FieldWidth(box, 8));
  box->setEnabled(false);
  checks_[field] = new LeaveCheck(box, session_.boxes, [this, field](const QString &text) -> std::optional<Box> {
    if (IsMeasurement(text, session_.locale, true)) return std::nullopt;
    const MeasurementRefusal refusal = RefusalOf(field);
    return Box{refusal.title, refusal.text, BoxIcon::Critical};
  });
  box->installEventFilter(this);
  connect(box, &QLineEdit::textChanged, this, &MeasurementBoxes::ShowDifferences);
  return box;
}

QLabel *MeasurementBoxes::MakeCaption(std::size_t field) {
  QLabel *caption = MakeLabel(ControlName("lbl", field, 1), QString::fromLatin1(sizeCaptions[field]));
  caption->setBuddy(boxes_[field]);
  caption->setEnabled(false);
  captions_[field] = caption;
  return caption;
}

QCheckBox *MeasurementBoxes::MakeBodyFatChoice() {
  chkBodyFat = new QCheckBox(QStringLiteral("Wor&k out the body fat from the waist"), this);
  chkBodyFat->setObjectName(QStringLiteral("chkBodyFat"));
  chkBodyFat->setToolTip(
      QStringLiteral("When the waist is left, the body fat is estimated from it and from the latest weight."));
  FollowBodyFatSetting();
  connect(chkBodyFat, &QCheckBox::clicked, this, [this](bool on) {
    session_.settings.BodyFat = on;
    SaveSetting(session_.settings, session_.store, QStringLiteral("BodyFat"));
    session_.changes.AnnounceSettings();
  });
  return chkBodyFat;
}

void MeasurementBoxes::FollowBodyFatSetting() { chkBodyFat->setChecked(session_.settings.BodyFat); }

void MeasurementBoxes::LayOutRows() {
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, spacing::tight, 0, 0);
  auto *rows = new QGridLayout;
  rows->setHorizontalSpacing(10);
  rows->setVerticalSpacing(6);
  layout->addLayout(rows);
  QLabel *lblHeading1 = MakeLabel(QStringLiteral("lblHeading1"), QStringLiteral("Current"));
  lblHeading2 = MakeLabel(QStringLiteral("lblHeading2"), {});
  QLabel *lblHeading3 = MakeLabel(QStringLiteral("lblHeading3"), QStringLiteral("Lost Since"));
  int column = 1;
  for (QLabel *heading : {lblHeading1, lblHeading2, lblHeading3}) {
    MakeBold(heading);
    rows->addWidget(heading, 0, column, Qt::AlignRight);
    column += column == 1 ? 2 : 1;
  }
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    const int row = static_cast<int>(field) + 1;
    rows->addWidget(MakeCaption(field), row, 0);
    rows->addWidget(boxes_[field], row, 1);
    units_.append(MakeLabel({}, {}));
    rows->addWidget(units_.last(), row, 2);
    AddPrevious(rows, field);
  }
  units_.first()->setObjectName(QStringLiteral("lblUom"));
  layout->addSpacing(spacing::tight);
  layout->addWidget(MakeBodyFatChoice(), 0, Qt::AlignLeft);
  layout->addStretch();
}

void MeasurementBoxes::AddPrevious(QGridLayout *rows, std::size_t field) {
  const auto add = [&](const QString &name, const QString &spoken, int column) {
    auto *figure = new FigureField(name, Qt::AlignRight | Qt::AlignVCenter, this);
    figure->setAccessibleName(SpokenName(field) + spoken);
    figure->setMinimumWidth(FieldWidth(figure, 8));
    rows->addWidget(figure, static_cast<int>(field) + 1, column);
    return figure;
  };
  previousBoxes_[field] = add(ControlName("txt", field, 2), QStringLiteral(", previous"), 3);
  differences_[field] = add(ControlName("pnl", field, 2), QStringLiteral(", lost since"), 4);
}

void MeasurementBoxes::LayOutSmall() {
  auto *rows = new QGridLayout(this);
  rows->setContentsMargins({});
  rows->setHorizontalSpacing(6);
  rows->setVerticalSpacing(2);
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    const int row = static_cast<int>(field) % smallRows;
    const int column = static_cast<int>(field) / smallRows * 4;
    rows->addWidget(MakeCaption(field), row, column);
    rows->addWidget(boxes_[field], row, column + 1);
    units_.append(MakeLabel({}, {}));
    rows->addWidget(units_.last(), row, column + 2);
  }
  units_.first()->setObjectName(QStringLiteral("lblUom"));
  rows->setColumnMinimumWidth(3, 16);
  rows->addWidget(MakeBodyFatChoice(), smallRows, 0, 1, 7, Qt::AlignLeft);
  rows->setColumnStretch(7, 1);
  rows->setRowStretch(smallRows + 1, 1);
}

void MeasurementBoxes::ShowUnits() {
  const QString uom = session_.settings.UomID == poundsSystem ? QStringLiteral("in.") : QStringLiteral("cm.");
  for (QLabel *unit : std::as_const(units_)) unit->setText(uom);
  units_.last()->setText(QStringLiteral("%"));
}

PerMeasurement<QString> MeasurementBoxes::Typed() const {
  PerMeasurement<QString> typed;
  for (std::size_t field = 0; field < typed.size(); ++field) typed[field] = boxes_[field]->text();
  return typed;
}

void MeasurementBoxes::ShowDay(const QDate &date) {
  if (date != date_) Save();
  const bool otherDay = date != date_;
  date_ = date;
  Read(!otherDay);
}

void MeasurementBoxes::Read(bool keepTyped) {
  const bool had = HasMeasurements();
  const bool read = Guarded(session_, LoadDayFailure(objectName()), [this] {
    shown_ = ReadDayMeasurements(session_, date_);
    if (!small_) previous_ = LoadPreviousMeasurements(session_, date_);
  });
  if (!read) return;
  for (std::size_t field = 0; field < boxes_.size(); ++field) {
    NumberField *const box = boxes_[field];
    if (keepTyped && box->isModified()) continue;
    const std::optional<double> value = shown_.values[field];
    if (!value) {
      box->clear();
    } else if (box->Number() != value) {  // "20.50" stays as it was typed
      box->SetNumber(*value);
    }
    box->setModified(false);
    box->setEnabled(HasMeasurements());
    captions_[field]->setEnabled(HasMeasurements());
    if (small_) continue;
    previousBoxes_[field]->ShowText(Format(previous_.values[field], QStringLiteral("General Number"), session_.locale));
  }
  if (!small_) lblHeading2->setText(previous_.heading);
  ShowDifferences();
  if (had != HasMeasurements()) Q_EMIT MeasurementsComeOrGo();
}

void MeasurementBoxes::ShowDifferences() {
  if (small_ || !differences_.back()) return;
  const auto differences = MeasurementDifferences(previous_, Typed(), session_.settings.UomID, session_.locale);
  for (std::size_t field = 0; field < differences.size(); ++field) differences_[field]->ShowText(differences[field]);
}

EditOutcome MeasurementBoxes::Save() {
  if (boxes_[waistField]->isModified()) BodyFatFollowsWaist();
  std::map<std::size_t, std::optional<double>> typed;
  for (std::size_t field = 0; field < boxes_.size(); ++field) {
    if (!boxes_[field]->isModified()) continue;
    // A page that is not seen shows no box; what it holds is refused all the same.
    if (!checks_[field]->Insist() || !IsMeasurement(boxes_[field]->text(), session_.locale, true)) {
      return EditOutcome::Refused;
    }
    typed[field] = boxes_[field]->Number();
  }
  return typed.empty() ? EditOutcome::Saved : Store(typed);
}

EditOutcome MeasurementBoxes::Store(const std::map<std::size_t, std::optional<double>> &typed) {
  if (saving_) return EditOutcome::Saved;
  saving_ = true;
  const bool stored = Guarded(session_, SaveDayFailure(objectName()),
                              [&] { shown_ = StoreDayMeasurements(session_, date_, shown_, typed); });
  saving_ = false;
  if (!stored) return EditOutcome::Failed;
  for (const auto &[field, value] : typed) boxes_[field]->setModified(false);
  Read(true);
  return EditOutcome::Saved;
}

void MeasurementBoxes::Restore() {
  for (NumberField *box : boxes_) box->setModified(false);
  if (date_.isValid()) Read(false);
}

void MeasurementBoxes::TakeFocus() {
  boxes_.front()->setFocus();
  boxes_.front()->selectAll();
}

std::optional<std::size_t> MeasurementBoxes::FieldOf(const QObject *watched) const {
  const auto found = std::find(boxes_.begin(), boxes_.end(), watched);
  if (found == boxes_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - boxes_.begin());
}

bool MeasurementBoxes::eventFilter(QObject *watched, QEvent *event) {
  const std::optional<std::size_t> field = FieldOf(watched);
  if (!field) return false;
  if (event->type() == QEvent::FocusIn) OnEntered(*field);
  if (event->type() == QEvent::FocusOut) OnLeft(*field, IsFieldLeft(*event));
  if (event->type() == QEvent::KeyPress) return OnKey(*field, static_cast<QKeyEvent *>(event)->key());
  return false;
}

// Enter and the arrows go through the boxes like through a column of a list; Esc takes back what was typed.
bool MeasurementBoxes::OnKey(std::size_t field, int key) {
  const bool down = key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
  if (down || key == Qt::Key_Up) {
    const std::size_t target = down ? field + 1 : field - 1;
    if (target < boxes_.size()) {
      boxes_[target]->setFocus(Qt::TabFocusReason);
    } else {
      Save();
    }
    return true;
  }
  if (key != Qt::Key_Escape || !boxes_[field]->isModified()) return false;
  boxes_[field]->setModified(false);
  Read(true);
  boxes_[field]->selectAll();
  return true;
}

void MeasurementBoxes::OnEntered(std::size_t field) {
  if (field == waistField && !boxes_[field]->isModified()) waistEntered_ = boxes_[field]->text();
  Q_EMIT FieldEntered(field);
}

void MeasurementBoxes::OnLeft(std::size_t field, bool byThePerson) {
  if (saving_ || !IsMeasurement(boxes_[field]->text(), session_.locale, true)) return;
  if (field == waistField && (byThePerson || boxes_[field]->isModified())) BodyFatFollowsWaist();
  // No box can open while the focus is on its way. A window of ours that is left shows no other figures than the next.
  QMetaObject::invokeMethod(this, &MeasurementBoxes::SaveLeft, Qt::QueuedConnection);
}

void MeasurementBoxes::SaveLeft() {
  std::map<std::size_t, std::optional<double>> typed;
  for (std::size_t field = 0; field < boxes_.size(); ++field) {
    const NumberField &box = *boxes_[field];
    const bool left = box.isModified() && !box.hasFocus();
    if (left && IsMeasurement(box.text(), session_.locale, true)) typed[field] = box.Number();
  }
  if (!typed.empty()) Store(typed);
}

// A figure that was typed over the estimate is not lost by walking through the waist.
void MeasurementBoxes::BodyFatFollowsWaist() {
  NumberField *const fat = boxes_[bodyFatField];
  const QString waist = boxes_[waistField]->text();
  if (!IsMeasurement(waist, session_.locale, false)) return;
  const bool wanted = std::exchange(waistEntered_, waist) != waist || fat->ValueOrZero() == 0;
  if (!chkBodyFat->isChecked() || !wanted) return;
  std::optional<QString> estimate;
  GuardedQuietly([&] { estimate = BodyFatFromWaist(session_, waist, date_); });
  if (!estimate || fat->text() == *estimate) return;
  fat->setText(*estimate);
  fat->setModified(true);
}

}  // namespace trimlog
