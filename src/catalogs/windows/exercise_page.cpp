#include "catalogs/windows/exercise_page.h"

#include <QFormLayout>

#include "core/session/failure_guard.h"
#include "journal/day/calorie_rules.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int numberCharacters = 10;
constexpr int descriptionCharacters = 44;

FailureExit SavingExerciseFailure() {
  FailureExit exit{QStringLiteral("basMain"), QStringLiteral("AddRec"), QStringLiteral("Error Saving Exercise"),
                   QStringLiteral("An error occurred while saving this exercise.  "), true};
  exit.logMessage = [](const QString &description) {
    return QStringLiteral("Type of Record was: 1.  Error Description: ") + description;
  };
  return exit;
}

}  // namespace

ExercisePage::ExercisePage(Session &session, QWidget *parent) : AddRecPage(parent), session_(session) {
  setObjectName(QStringLiteral("pnlAddRec(1)"));
  auto *form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  const auto text = [this](const QString &name, const QString &spoken) {
    auto *field = new TextField(name, spoken, exerciseTextLength, this);
    field->setFixedWidth(FieldWidth(field, descriptionCharacters));
    return field;
  };
  const auto number = [this](const QString &name, const QString &spoken) {
    auto *field = new NumberField(name, spoken, session_.locale, this);
    field->setFixedWidth(FieldWidth(field, numberCharacters));
    return field;
  };
  Add(*form, &TypedExercise::ActivityDesc, text(QStringLiteral("txtActivityDesc"), QStringLiteral("Description")),
      QStringLiteral("&Description:"));
  Add(*form, &TypedExercise::Duration, number(QStringLiteral("txtDuration"), QStringLiteral("Duration in minutes")),
      QStringLiteral("D&uration (minutes):"));
  Add(*form, &TypedExercise::Pace, text(QStringLiteral("txtPace"), QStringLiteral("Pace")), QStringLiteral("&Pace:"));
  Add(*form, &TypedExercise::Calories, number(QStringLiteral("txtCalories"), QStringLiteral("Calories burned")),
      QStringLiteral("&Calories burned:"));
  Add(*form, &TypedExercise::Amount, text(QStringLiteral("txtAmount"), QStringLiteral("Distance or weight")),
      QStringLiteral("Dist/&Weight:"));
  Add(*form, &TypedExercise::Sets, number(QStringLiteral("txtSets"), QStringLiteral("Sets")), QStringLiteral("&Sets:"));
  Add(*form, &TypedExercise::Reps, number(QStringLiteral("txtReps"), QStringLiteral("Reps")), QStringLiteral("&Reps:"));
  const int weight = static_cast<int>(ReferenceBodyWeight(session_.settings.UomID));
  QLabel *note = MakeLabel(QStringLiteral("lblReferenceWeight"),
                           QStringLiteral("The calories are those of the minutes above, for a body of %1 %2.")
                               .arg(QString::number(weight), session_.UomDisplay.toLower()));
  form->addRow(QString(), note);
  setFocusProxy(fields_.first().line);
}

void ExercisePage::Add(QFormLayout &form, QString TypedExercise::*of, QLineEdit *line, const QString &caption) {
  form.addRow(caption, line);
  fields_.append({of, line});
}

QString ExercisePage::Title() const { return QStringLiteral("Create a New Exercise or Workout"); }

QString ExercisePage::Header() const {
  return QStringLiteral("Enter the information for your new exercise or workout and click <OK>.");
}

TypedExercise ExercisePage::Typed() const {
  TypedExercise typed;
  for (const Field &field : fields_) typed.*field.of = field.line->text();
  return typed;
}

QLineEdit *ExercisePage::LineOf(QString TypedExercise::*of) const {
  for (const Field &field : fields_) {
    if (field.of == of) return field.line;
  }
  return fields_.first().line;
}

bool ExercisePage::Store() {
  const TypedExercise typed = Typed();
  if (const std::optional<ExerciseComplaint> complaint = CheckExercise(typed, session_.locale)) {
    session_.boxes.Critical(complaint->title, complaint->text);
    QLineEdit *const line = LineOf(complaint->field);
    line->setFocus();
    line->selectAll();
    return false;
  }
  return Guarded(session_, SavingExerciseFailure(),
                 [&] { activityID_ = AddExercise(session_, ExerciseOf(typed, session_.locale)); });
}

}  // namespace trimlog
