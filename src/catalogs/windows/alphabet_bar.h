#pragma once

#include <QWidget>

namespace trimlog {

/// The row of letters that jumps in a list of foods: pshAplha(0) for A to pshAplha(25) for Z.
class AlphabetBar : public QWidget {
  Q_OBJECT
 public:
  explicit AlphabetBar(QWidget *parent);

 Q_SIGNALS:
  void LetterChosen(QChar letter);
};

}  // namespace trimlog
