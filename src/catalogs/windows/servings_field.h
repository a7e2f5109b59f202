#pragma once

#include <QLocale>
#include <QWidget>

class QToolButton;

namespace trimlog {

class NumberField;
class ServingsSelector;

/// How many servings of a food: a field, txtServ(n), and the button that opens the Serving Selector for it, cmdServ(n);
/// F4 and Alt+Down in the field do the same. Starts at 1.
class ServingsField : public QWidget {
  Q_OBJECT
 public:
  ServingsField(int index, const QLocale &locale, ServingsSelector &selector, QWidget *parent);

  NumberField *Field() const { return txtServ; }

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  ServingsSelector &selector_;
  NumberField *txtServ;
  QToolButton *cmdServ;
};

}  // namespace trimlog
