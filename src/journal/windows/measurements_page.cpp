#include "journal/windows/measurements_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/session/print.h"
#include "core/windows/controls/grid_menu.h"
#include "health/body_formulas.h"
#include "journal/day/day_records.h"
#include "journal/day/printed_heading.h"
#include "journal/windows/add_measurements_page.h"
#include "journal/windows/body_picture.h"
#include "journal/windows/body_totals.h"
#include "journal/windows/day_grid.h"
#include "journal/windows/measurement_boxes.h"
#include "journal/windows/page_buttons.h"
#include "platform/text/text_format.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/printing/grid_printer.h"

namespace trimlog {

namespace {

constexpr int male = 1;
const QString dateField = QStringLiteral("ThisDate");
const QString firstSize = QString::fromLatin1(measurementFields.front().column);

/// A day has one set of measurements: one cannot be moved onto another.
QString RefuseSecondSet(const Session &session, const GridRowEdit &row) {
  if (!row.IsChanged(dateField)) return {};
  const std::optional<int> other = MeasurementsOn(session, row.Get(dateField).toDate());
  return other && *other != row.Key() ? QStringLiteral("Measurements already exist for this date.") : QString();
}

GridColumns MeasurementColumns() {
  GridColumns columns = {DateColumn()};
  for (std::size_t field = 0; field < measurementFields.size(); ++field) {
    const QString name = QString::fromLatin1(measurementFields[field].column);
    columns.push_back(
        {.name = name,
         .caption = field == bodyFatField ? QStringLiteral("Body\nFat %") : name,
         .field = name,
         .type = GridType::Number,
         .width = 6,
         .editable = true,
         .validate = [field](const Value &value) { return value.toDouble() < 0 ? RefusalOf(field).text : QString(); }});
  }
  return columns;
}

}  // namespace

MeasurementsPage::MeasurementsPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("MeasurementsPage"), parent) {
  auto *buttons = new PageButtons(day_.Kind().isSmall, this);
  cmdNewMeasurement =
      buttons->AddNew(QStringLiteral("cmdNewMeasurement"), QStringLiteral("Adds the measurements of a day."));
  cmdDeleteMeasurement =
      buttons->AddDelete(QStringLiteral("cmdDeleteMeasurement"), QStringLiteral("Deletes the measurements."));
  QPushButton *cmdPrintMeasurement =
      buttons->AddPrint(QStringLiteral("cmdPrintMeasurement"), QStringLiteral("Prints the measurements shown."));
  buttons->AddStretch();
  connect(cmdNewMeasurement, &QPushButton::clicked, this, &MeasurementsPage::AddNew);
  connect(cmdDeleteMeasurement, &QPushButton::clicked, this, &MeasurementsPage::DeleteMeasurements);
  connect(cmdPrintMeasurement, &QPushButton::clicked, this, &MeasurementsPage::Print);
  views_ = new QStackedWidget(this);
  buttons->LayOutPage()->addWidget(views_);
  views_->addWidget(MakeSingle());
  if (day_.Kind().viewSetting) views_->addWidget(MakeList());
  UpdateButtons();
}

QWidget *MeasurementsPage::MakeSingle() {
  auto *single = new QWidget(views_);
  auto *layout = new QHBoxLayout(single);
  layout->setContentsMargins({});
  boxes_ = new MeasurementBoxes(session_, !day_.Kind().hasPreviousValues, single);
  layout->addWidget(boxes_);
  connect(boxes_, &MeasurementBoxes::MeasurementsComeOrGo, this, &MeasurementsPage::UpdateButtons);
  if (day_.Kind().isSmall) return single;
  layout->addSpacing(fontMetrics().averageCharWidth() * 4);
  picBody = new BodyPicture(single);
  layout->addWidget(picBody);
  layout->addStretch(1);
  connect(boxes_, &MeasurementBoxes::FieldEntered, picBody, &BodyPicture::ShowField);
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    if (change.table == Table::People && isVisible()) ShowGender();
  });
  return single;
}

QWidget *MeasurementsPage::MakeList() {
  auto *list = new QWidget(views_);
  auto *layout = new QVBoxLayout(list);
  layout->setContentsMargins({});
  MakeGrid(list);
  layout->addWidget(grdMeasurements, 1);
  QLabel *pnlBodyTotals1 =
      AddLabel(layout, QStringLiteral("pnlBodyTotals1"),
               QStringLiteral("Lost from your first measurements to the chosen ones (less than 0: gained):"));
  MakeBold(pnlBodyTotals1);
  totals_ = new BodyTotals(*grdMeasurements, list);
  layout->addWidget(totals_);
  return list;
}

void MeasurementsPage::MakeGrid(QWidget *parent) {
  grdMeasurements = MakeDayGrid({session_, navigator_, doors_, day_},
                                {.grid = QStringLiteral("grdMeasurements"),
                                 .label = QStringLiteral("Measurements of all days"),
                                 .recordSource = QStringLiteral("datMeasurements"),
                                 .table = Table::Measurements},
                                parent);
  grdMeasurements->SetColumns(MeasurementColumns());
  grdMeasurements->SetPlaceholderText(QStringLiteral("No measurements yet. \"New...\" adds some."));
  GridHooks &hooks = grdMeasurements->Hooks();
  hooks.beforeUpdate = [this](GridRowEdit &row) { return RefuseSecondSet(session_, row); };
  hooks.afterCell = [this](GridRowEdit &row, const QString &column) {
    if (column == QLatin1String(measurementFields[waistField].column)) BodyFatFollowsWaist(row);
  };
  (new GridMenu(session_, navigator_, this))->Attach(*grdMeasurements);
  FollowCurrentRow(*grdMeasurements, day_);
  connect(grdMeasurements, &BoundGrid::CurrentRowChanged, this, [this] { totals_->ShowTotals(); });
  GridModel &model = grdMeasurements->Model();
  connect(&model, &QAbstractItemModel::dataChanged, this, [this] { totals_->ShowTotals(); });
  for (const auto rowsChange : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    connect(&model, rowsChange, this, &MeasurementsPage::UpdateButtons);
  }
  connect(&model, &QAbstractItemModel::modelReset, this, &MeasurementsPage::UpdateButtons);
}

void MeasurementsPage::BodyFatFollowsWaist(GridRowEdit &row) {
  if (!session_.settings.BodyFat) return;
  GuardedQuietly([&] {
    const QString waist = Format(row.Get(QLatin1String(measurementFields[waistField].column)).toDouble(),
                                 QStringLiteral("General Number"), session_.locale);
    const std::optional<QString> estimate = BodyFatFromWaist(session_, waist, row.Get(dateField).toDate());
    if (!estimate) return;
    row.Set(QLatin1String(measurementFields[bodyFatField].column), ValueOrZero(*estimate, session_.locale));
  });
}

void MeasurementsPage::ShowView(JournalView view) { views_->setCurrentIndex(view == JournalView::SingleDate ? 0 : 1); }

void MeasurementsPage::ShowRows() {
  if (day_.IsSingleDate()) {
    ShowGender();
    boxes_->ShowDay(day_.Date());
  } else {
    const GridSource source = MeasurementsSource(day_.Scope());
    const bool shown = grdMeasurements->Model().IsOpen() ? grdMeasurements->SetSource(source)
                                                         : grdMeasurements->Open(session_.Data(), source);
    GridModel &model = grdMeasurements->Model();
    if (shown) grdMeasurements->setCurrentIndex(model.index(0, model.ColumnByName(firstSize)));
    totals_->ShowTotals();
  }
  UpdateButtons();
}

void MeasurementsPage::ShowGender() {
  if (!picBody) return;
  GuardedQuietly([this] { picBody->ShowGender(ReadBodyProfile(session_).GenderID == male); });
}

void MeasurementsPage::UpdateButtons() {
  const bool single = day_.IsSingleDate();
  const bool any = single ? boxes_->HasMeasurements() : grdMeasurements->Model().RecordCount() > 0;
  cmdNewMeasurement->setEnabled(!single || !any);
  cmdDeleteMeasurement->setEnabled(any);
  if (picBody && single && !any) picBody->ShowField(std::nullopt);
}

EditOutcome MeasurementsPage::SaveOpenEdit() {
  return day_.IsSingleDate() ? boxes_->Save() : SaveDayGrid(session_, *grdMeasurements);
}

void MeasurementsPage::DropOpenEdit() {
  if (day_.IsSingleDate()) {
    boxes_->Restore();
  } else {
    DropDayGrid(*grdMeasurements);
  }
}

void MeasurementsPage::TakeFocus() {
  if (!day_.IsSingleDate()) return grdMeasurements->setFocus();
  if (boxes_->HasMeasurements()) {
    boxes_->TakeFocus();
  } else {
    cmdNewMeasurement->setFocus();
  }
}

QDate MeasurementsPage::ProposedDate() const {
  if (day_.IsSingleDate()) return day_.Date();
  const QDate ofRow = grdMeasurements->CurrentField(dateField).toDate();
  return ofRow.isValid() ? ofRow : session_.Today();
}

void MeasurementsPage::AddNew() {
  if (day_.IsSingleDate() && boxes_->HasMeasurements()) {
    session_.boxes.Warn(
        QStringLiteral("Measurements Already Exist"),
        QStringLiteral(
            "Unable to add the new measurements because a set of measurements already exist for this date."));
    return;
  }
  if (SaveOpenEdit() != EditOutcome::Saved) return;
  QDate date;
  int recordID = 0;
  const auto make = [this](QWidget *dialog) {
    return new AddMeasurementsPage(session_, ProposedDate(), day_.Kind().hasFixedDate, dialog);
  };
  const bool added = AddRec(window(), make, [&](AddRecPage &page) {
    date = static_cast<AddMeasurementsPage &>(page).StoredDate();
    recordID = static_cast<AddMeasurementsPage &>(page).StoredID();
  });
  if (added) {
    day_.FollowAdded(date);
    if (!day_.IsSingleDate()) GoToAddedRow(session_, *grdMeasurements, recordID, firstSize);
  }
  TakeFocus();
}

void MeasurementsPage::DeleteMeasurements() {
  if (!day_.IsSingleDate()) {
    grdMeasurements->DeleteSelected();
    return;
  }
  const std::optional<int> recordID = boxes_->RecordID();
  if (!recordID) return;
  if (session_.settings.ConfirmDeletes &&
      !session_.boxes.Ask(QStringLiteral("Delete Measurements?"),
                          QStringLiteral("Delete the measurements for this day?"))) {
    return;
  }
  const bool deleted = Guarded(session_, DeleteDayFailure(cmdDeleteMeasurement->objectName()),
                               [&] { DeleteDayRecords(session_, Table::Measurements, {*recordID}); });
  if (deleted) boxes_->Restore();
  TakeFocus();
}

void MeasurementsPage::Print() {
  if (SaveOpenEdit() != EditOutcome::Saved) return;
  const bool single = day_.IsSingleDate();
  if (single ? !boxes_->HasMeasurements() : grdMeasurements->Model().RecordCount() == 0) {
    session_.boxes.Warn(QStringLiteral("No Data to Print"), day_.Kind().noDataToPrint);
    return;
  }
  trimlog::Print(session_, QStringLiteral("frmDiary"), QStringLiteral("cmdPrintMeasurement_Click"),
                 [this, single](Printing &printing) {
                   if (single) return printing.PrintList(MeasurementsToPrint(session_, day_.Date(), boxes_->Typed()));
                   const QString title = QStringLiteral(": Body Measurements for All Dates");
                   return printing.PrintList(PrintedGrid(*grdMeasurements, PrintedHeading(session_, title)));
                 });
}

}  // namespace trimlog
