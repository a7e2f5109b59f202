#pragma once

#include <QDialog>

#include "core/session/session.h"
#include "platform/machine/operating_system.h"

namespace trimlog {

/// The picture shown while the program starts, and with AboutMode the About box, which also tells whose profile is
/// open, the license and the data file, and copies all that a report of a problem needs.
class frmSplash : public QDialog {
  Q_OBJECT
 public:
  frmSplash(Session &session, const OperatingSystem &system, bool AboutMode, QWidget *owner);

 private:
  QWidget *BuildPicture();
  QWidget *BuildFacts();
  QWidget *BuildButtons();

  Session &session_;
  const OperatingSystem &system_;
};

}  // namespace trimlog
