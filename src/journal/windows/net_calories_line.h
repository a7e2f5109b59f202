#pragma once

#include <QWidget>

namespace trimlog {

class ResultText;
class Session;

/// The line of a day's net calories in words, with a button that tells what they are. It hides while there are none.
class NetCaloriesLine : public QWidget {
  Q_OBJECT
 public:
  /// `name` is that of the text's control.
  NetCaloriesLine(Session &session, const QString &name, QWidget *parent);

  void Tell(const QString &text);  ///< "" when there are none to be told
  QString Text() const;

 private:
  ResultText *text_;
};

}  // namespace trimlog
