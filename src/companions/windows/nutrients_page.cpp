#include "companions/windows/nutrients_page.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "companions/wizard_nutrients.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/refused_row.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spoken_label.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

constexpr int fewestRowsShown = 6;

GridColumns NutrientColumns(const QLocale &locale) {
  return {{.name = QStringLiteral("IsModified"),
           .caption = QStringLiteral("Nutrient"),
           .field = QStringLiteral("IsModified"),
           .type = GridType::Check,
           .width = 8,
           .editable = true},
          {.name = QStringLiteral("MealDesc"),
           .caption = QStringLiteral("Description"),
           .field = QStringLiteral("MealDesc"),
           .width = 30},
          {.name = QStringLiteral("MealGroupID"),
           .caption = QStringLiteral("NutSortOrder"),
           .field = QStringLiteral("MealGroupID"),
           .type = GridType::WholeNumber,
           .visible = false},
          {.name = QStringLiteral("Amount"),
           .caption = QStringLiteral("Target/Limit"),
           .field = QStringLiteral("Amount"),
           .width = 16,
           .editable = true,
           .maxLength = 20,
           .validate = [locale](const Value &value) { return RefusedTarget(value.toString(), locale); },
           .alignment = Qt::AlignRight}};
}

GridSource NutrientRows() {
  return {.table = QStringLiteral("temp_meals_search"),
          .key = QStringLiteral("MealID"),
          .order = {{QStringLiteral("MealGroupID")}}};
}

/// Did an answer change that the proposal depends on?
bool ProposesElse(const WizardAnswers &one, const WizardAnswers &other) {
  return one.diet != other.diet || one.person.BirthDate != other.person.BirthDate ||
         one.person.GenderID != other.person.GenderID || one.nutrientID != other.nutrientID;
}

FailureExit Exit(const char *procedure, const char *text) {
  return {QStringLiteral("frmWizard"), QString::fromLatin1(procedure), QStringLiteral("Your Nutrient Selections"),
          QString::fromLatin1(text), true};
}

}  // namespace

NutrientsPage::NutrientsPage(Session &session, QWidget *parent) : WizardPage(parent), session_(session) {
  QVBoxLayout *layout = MakeColumn();
  AddNote(layout, QStringLiteral("lblNutrients"),
          QStringLiteral("Tick up to ten nutrients to see in your journal, and type a target or limit for each day."));
  lblNote = AddNote(layout, QStringLiteral("lblNote"), {});
  MakeGrid();
  layout->addWidget(grdNutrients, 1);
  lblNutrientCount = new SpokenLabel(QStringLiteral("lblNutrientCount"), this);
  layout->addWidget(lblNutrientCount);
}

void NutrientsPage::MakeGrid() {
  grdNutrients =
      new BoundGrid(QStringLiteral("grdNutrients"), QStringLiteral("Nutrients and targets"), session_.locale, this);
  grdNutrients->canDelete = false;
  grdNutrients->SetColumns(NutrientColumns(session_.locale));
  const QHeaderView *captions = grdNutrients->horizontalHeader();
  grdNutrients->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  grdNutrients->setMinimumHeight(captions->sizeHint().height() +
                                 grdNutrients->verticalHeader()->defaultSectionSize() * fewestRowsShown);
  grdNutrients->installEventFilter(this);
  GridHooks &hooks = grdNutrients->Hooks();
  hooks.guard = [this](GridAction, const std::function<void()> &work) {
    return Guarded(session_, Exit("grdNutrients_AfterUpdate", "An error occurred while saving the nutrients.  "), work);
  };
  hooks.beforeUpdate = [this](GridRowEdit &row) {
    MatchTickAndTarget(row);
    return RefusedTargetOf(session_, static_cast<int>(row.Key()), row.Get(QStringLiteral("Amount")).toString());
  };
  hooks.afterUpdate = [this](qint64) { UpdateNutrientCount(); };
  // A tick counts as soon as it is set, not only when its row is left.
  connect(&grdNutrients->Model(), &GridModel::CellEdited, this, [this](int, const QString &column) {
    if (column != QStringLiteral("IsModified")) return;
    QMetaObject::invokeMethod(
        this, [this] { grdNutrients->CommitRow(); }, Qt::QueuedConnection);
  });
}

void NutrientsPage::Enter(const WizardAnswers &answers) {
  if (filledFor_ && !ProposesElse(*filledFor_, answers)) return;
  Guarded(session_, Exit("FillWizardNutrients", "An error occurred while reading the nutrients.  "), [&] {
    grdNutrients->UndoRow();
    FillWizardNutrients(session_, answers);
    grdNutrients->Open(session_.Data(), NutrientRows());
    lblNote->setText(WizardTargetsNote(answers.diet));
    filledFor_ = answers;
  });
  UpdateNutrientCount();
}

QWidget *NutrientsPage::FirstField() const { return grdNutrients; }

bool NutrientsPage::Check(const WizardAnswers &) {
  if (grdNutrients->CommitRow()) return CheckWizardNutrients(session_);
  ShowRefusedRow(session_, QStringLiteral("Invalid Target"), *grdNutrients);
  return false;
}

void NutrientsPage::UpdateNutrientCount() {
  GuardedQuietly([this] { lblNutrientCount->Tell(WizardCountText(CountWizardNutrients(session_))); });
}

// Enter goes on to the next step, as on every page; while a target is being typed it belongs to its field.
bool NutrientsPage::eventFilter(QObject *watched, QEvent *event) {
  if (watched == grdNutrients && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      event->ignore();
      return true;
    }
  }
  return WizardPage::eventFilter(watched, event);
}

}  // namespace trimlog
