#pragma once

#include <QDate>
#include <QString>
#include <functional>

namespace trimlog {

/// What a content window is opened with.
struct FormOpening {
  QDate date;  ///< the day to show; invalid: where the window would open by itself
};

/// The door to the content windows ("frmData", ...), of which the frame shows one: it knows which of them are there.
/// The app fills it in; what would lead to another window is shown disabled.
struct FormDoor {
  std::function<bool(const QString &formName)> leads;
  std::function<void(const QString &formName, const FormOpening &opening)> show;

  bool LeadsTo(const QString &formName) const { return leads && leads(formName); }
  /// Shows the window, unless the one before refuses to be left. Nothing where it leads nowhere.
  void operator()(const QString &formName, const FormOpening &opening = {}) const {
    if (LeadsTo(formName) && show) show(formName, opening);
  }
};

/// The tip of what is disabled because nothing stands behind its door.
inline const QString leadsNowhere = QStringLiteral("This is not part of this version.");
inline const QString noTutorials = QStringLiteral("The tutorials are not installed.");

}  // namespace trimlog
