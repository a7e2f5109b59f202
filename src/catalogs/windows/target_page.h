#pragma once

#include "core/session/session.h"
#include "core/windows/profiles/add_rec_page.h"

namespace trimlog {

class TextField;

/// The page for a new set of daily targets: its name; the targets themselves are typed in their window.
class TargetPage : public AddRecPage {
  Q_OBJECT
 public:
  TargetPage(Session &session, QWidget *parent);

  QString Title() const override;
  QString Header() const override;
  bool Store() override;
  int TargetID() const { return targetID_; }

 private:
  Session &session_;
  TextField *txtTargetDesc;
  int targetID_ = 0;
};

}  // namespace trimlog
