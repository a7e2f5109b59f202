#pragma once

#include <QList>
#include <QString>

namespace trimlog {

/// What the wizard is for.
enum class WizardMode {
  FirstRun,           ///< nobody is in the file yet
  AddingProfile,      ///< one more person
  CompletingProfile,  ///< the profile in use has no goal or no weight yet
};

enum class WizardStep { Introduction, Profile, WeightAndDiet, Nutrients, Colors };

/// The road through the configuration wizard: which steps there are and what each is called.
class WizardPlan {
 public:
  /// `manyColors`: the screen shows more than 256 colours, without which there is no colour step.
  WizardPlan(WizardMode mode, bool manyColors);

  WizardMode Mode() const { return mode_; }
  /// The first run asks for units, diet, nutrients and colours too; the others take two steps.
  bool IsFirstRun() const { return mode_ == WizardMode::FirstRun; }
  int WizardSteps() const { return static_cast<int>(steps_.size()); }
  /// `number` runs from 1 to WizardSteps(); throws outOfBounds beyond ("Internal Wizard Error").
  WizardStep StepAt(int number) const;
  QString TitleOf(int number) const;
  /// The step's name in the overview beside the pages.
  QString NameOf(int number) const;
  /// "&Finish" at the last step, "&Next" elsewhere.
  QString NextCaption(int number) const;

 private:
  WizardMode mode_;
  QList<WizardStep> steps_;
};

}  // namespace trimlog
