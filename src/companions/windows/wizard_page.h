#pragma once

#include <QLineEdit>
#include <QList>
#include <QWidget>
#include <functional>
#include <utility>

#include "companions/wizard_answers.h"

class QGridLayout;
class QVBoxLayout;

namespace trimlog {

/// One step of the configuration wizard. It keeps its controls as long as the wizard lives, so that going back and
/// forth loses nothing.
class WizardPage : public QWidget {
  Q_OBJECT
 public:
  using Mend = std::function<QString(const QString &text)>;
  using QWidget::QWidget;

  /// The page is about to be shown: takes over what earlier steps decided.
  virtual void Enter(const WizardAnswers &) {}
  /// Where the keyboard goes when the page is shown; null leaves it to the wizard.
  virtual QWidget *FirstField() const { return nullptr; }
  /// Mends the fields and writes what they say.
  virtual void Store(WizardAnswers &) {}
  /// May the step be left for the next one? False when a box was shown; the faulty field then has the focus.
  virtual bool Check(const WizardAnswers &) { return true; }

 protected:
  /// What the page stands in: as wide as the wizard's title above it.
  QVBoxLayout *MakeColumn();
  /// A sentence, and below it the fields: a form, or the grid that AddFormRow fills.
  void AddForm(const QString &sentence, QWidget *form);
  QGridLayout *MakeForm(const QString &sentence);
  /// A field that is mended, without a message, when it is left.
  void MendOnLeaving(QLineEdit *field, const Mend &mend);
  void MendFields();
  /// Gives a field the focus with its whole text selected.
  static void GoTo(QLineEdit *field);
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QList<std::pair<QLineEdit *, Mend>> mended_;
};

}  // namespace trimlog
