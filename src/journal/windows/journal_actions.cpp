#include "journal/windows/journal_actions.h"

#include <QMenu>

#include "journal/windows/actions_combo.h"

namespace trimlog {

void JournalActions::FillList(ActionsCombo &list) const {
  static constexpr std::pair<const char *, Goal> entries[] = {
      {"Edit the Food List", Goal::Foods},
      {"Edit My Recipes", Goal::Recipes},
      {"Change My Targets", Goal::Targets},
      {"Select Different Nutrients", Goal::Nutrients},
      {"Learn About Foods and Nutrients", Goal::Learn},
      {"Get Help for the Meals Journal", Goal::MealsHelp},
  };
  for (const auto &[caption, goal] : entries) {
    list.AddAction(QString::fromLatin1(caption), WhyNot(goal), [*this, goal = goal] { Go(goal); });
  }
}

QMenu *JournalActions::MakeMenu() const {
  struct Entry {
    const char *name;
    const char *caption;
    Goal goal;
  };
  static constexpr Entry entries[] = {
      {"mnuPM3Foods", "View/Edit the &Foods Database", Goal::Foods},
      {"mnuPM3Recipes", "View/Edit My &Recipes", Goal::Recipes},
      {"mnuPM3Targets", "Change My Daily &Targets", Goal::Targets},
      {"mnuPM3Nutrients", "Show Different &Nutrients", Goal::Nutrients},
      {"mnuPM3Options", "View Journal &Options", Goal::Options},
      {"mnuPM3Help", "Get &Help for the Meals Journal", Goal::MealsHelp},
      {"mnuPM3Learn", "&Learn About Foods and Nutrients", Goal::Learn},
      {"mnuPM3Tutorial", "Take a &Quick Tutorial", Goal::Tutorial},
  };
  auto *menu = new QMenu(&window_);
  menu->setObjectName(QStringLiteral("mnuPM3"));
  menu->setToolTipsVisible(true);
  for (const Entry &entry : entries) {
    if (entry.goal == Goal::Options || entry.goal == Goal::MealsHelp) menu->addSeparator();
    QAction *action = menu->addAction(QString::fromLatin1(entry.caption));
    action->setObjectName(QLatin1String(entry.name));
    const QString whyNot = WhyNot(entry.goal);
    action->setEnabled(whyNot.isEmpty());
    action->setToolTip(whyNot);
    QObject::connect(action, &QAction::triggered, &window_, [*this, goal = entry.goal] { Go(goal); });
  }
  return menu;
}

const std::function<void(QWidget *)> *JournalActions::Catalog(Goal goal) const {
  switch (goal) {
    case Goal::Foods:
      return &navigator_.OpenFoodSetup;
    case Goal::Recipes:
      return &navigator_.OpenRecipes;
    case Goal::Targets:
      return &navigator_.OpenTargets;
    case Goal::Nutrients:
      return &navigator_.OpenNutrientSelection;
    default:
      return nullptr;
  }
}

QString JournalActions::WhyNot(Goal goal) const {
  if (const auto *catalog = Catalog(goal)) return *catalog ? QString() : leadsNowhere;
  switch (goal) {
    case Goal::Options:
      return navigator_.OpenSetup ? QString() : leadsNowhere;
    case Goal::Tutorial:
      return navigator_.StartTutorialSelector ? QString() : noTutorials;
    default:
      return navigator_.ShowHelp ? QString() : leadsNowhere;
  }
}

void JournalActions::Go(Goal goal) const {
  if (goal == Goal::MealsHelp) return navigator_.ShowHelp(QStringLiteral("journal#meals"));
  if (goal == Goal::Learn) return navigator_.ShowHelp(QStringLiteral("nutrition"));
  if (goal == Goal::Tutorial) return navigator_.StartTutorialSelector();
  if (!leave_()) return;
  if (const auto *catalog = Catalog(goal)) return (*catalog)(&window_);
  navigator_.OpenSetup(SetupTab::Journal);
}

}  // namespace trimlog
