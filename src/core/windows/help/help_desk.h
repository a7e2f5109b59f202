#pragma once

#include <QObject>
#include <QPointer>

#include "core/session/session.h"

namespace trimlog {

class frmHelp;

/// The program's one way to its help: F1 in any window, the help and tips buttons and the Help menu all end in Show.
class HelpDesk : public QObject {
  Q_OBJECT
 public:
  /// Listens for F1 from now on.
  explicit HelpDesk(Session &session);
  ~HelpDesk() override;

  /// Opens the page of a topic, "" for the first page. Says so when the program was installed without its help.
  void Show(const QString &topic);

  /// The topic for where a person is: of the page that the window shows, else of the window, else of its owner.
  static QString TopicFor(const QWidget *widget);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  Session &session_;
  QPointer<frmHelp> window_;
};

}  // namespace trimlog
