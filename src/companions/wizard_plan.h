#pragma once

#include <QList>
#include <QString>

namespace trimlog {

enum class WizardStep { Introduction, Profile, WeightAndDiet, Nutrients, Colors };

/// The road through the configuration wizard: which steps there are and what each is called.
class WizardPlan {
 public:
  /// `addingProfile`: profiles exist already, and the wizard only adds one more. `manyColors`: the screen shows more
  /// than 256 colours, without which there is no colour step.
  WizardPlan(bool addingProfile, bool manyColors);

  bool AddingProfile() const { return addingProfile_; }
  int WizardSteps() const { return static_cast<int>(steps_.size()); }
  /// `number` runs from 1 to WizardSteps(); throws outOfBounds beyond ("Internal Wizard Error").
  WizardStep StepAt(int number) const;
  QString TitleOf(int number) const;
  /// The step's name in the overview beside the pages.
  QString NameOf(int number) const;
  /// "&Finish" at the last step, "&Next" elsewhere.
  QString NextCaption(int number) const;

 private:
  bool addingProfile_;
  QList<WizardStep> steps_;
};

}  // namespace trimlog
