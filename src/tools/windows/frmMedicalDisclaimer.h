#pragma once

#include <QDialog>

#include "core/session/session.h"

namespace trimlog {

/// Reminds that the calculators are no medical advice. However it is closed, the check box decides whether it comes
/// again, and the choice is stored at once.
class frmMedicalDisclaimer : public QDialog {
  Q_OBJECT
 public:
  explicit frmMedicalDisclaimer(Session &session, QWidget *parent = nullptr);
};

}  // namespace trimlog
