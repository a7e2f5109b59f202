#pragma once

#include "catalogs/exercise_catalog.h"
#include "core/windows/profiles/add_rec_page.h"

class QFormLayout;
class QLineEdit;

namespace trimlog {

/// The page for a new exercise or workout of the person's own.
class ExercisePage : public AddRecPage {
  Q_OBJECT
 public:
  ExercisePage(Session &session, QWidget *parent);

  QString Title() const override;
  QString Header() const override;
  bool Store() override;
  int ActivityID() const { return activityID_; }

 private:
  struct Field {
    QString TypedExercise::*of;
    QLineEdit *line;
  };
  void Add(QFormLayout &form, QString TypedExercise::*of, QLineEdit *line, const QString &caption);
  TypedExercise Typed() const;
  QLineEdit *LineOf(QString TypedExercise::*of) const;

  Session &session_;
  QList<Field> fields_;
  int activityID_ = 0;
};

}  // namespace trimlog
