#pragma once

#include <functional>
#include <vector>

#include "core/session/navigator.h"

class QMenu;
class QWidget;

namespace trimlog {

class ActionsCombo;

/// Where a person goes from the journal: the catalogs, the options and the help, as entries of the list "Other
/// Actions..." and of the window's menu. What leads nowhere is disabled and says so.
class JournalActions {
 public:
  /// `leave` saves what is being typed, because what opens may read or change it; false stays here.
  JournalActions(const Navigator &navigator, QWidget &window, std::function<bool()> leave)
      : navigator_(navigator), window_(window), leave_(std::move(leave)) {}

  void FillList(ActionsCombo &list) const;
  /// The menu mnuPM3, owned by the window.
  QMenu *MakeMenu() const;

 private:
  enum class Goal { Foods, Recipes, Targets, Nutrients, Options, MealsHelp, Learn, Tutorial };
  QString WhyNot(Goal goal) const;
  void Go(Goal goal) const;
  const std::function<void(QWidget *)> *Catalog(Goal goal) const;

  const Navigator &navigator_;
  QWidget &window_;
  std::function<bool()> leave_;
};

}  // namespace trimlog
