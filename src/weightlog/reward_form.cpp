#include "weightlog/reward_form.h"

#include "core/data/data_access.h"
#include "core/profiles/goal.h"
#include "core/session/failure_guard.h"
#include "core/settings/unit_system.h"
#include "platform/text/text_format.h"
#include "weightlog/rewards.h"

namespace trimlog {

namespace {

QString Shown(const QString &plain, const QLocale &locale) {
  return QString(plain).replace(QLatin1Char('.'), locale.decimalPoint());
}

QString PersonValue(Session &session, const QString &field) {
  return GetDataValue(session.Data(), field, QStringLiteral("people"), QStringLiteral("((people.PersonID)=?)"), {},
                      {session.profile.CurrentPersonID.toInt()});
}

void SwapDefault(QString &amount, RewardType type, int uomID, const QLocale &locale) {
  const std::optional<double> typed = ParseNumber(amount, locale);
  const int otherSystem = uomID == poundsSystem ? kilogramsSystem : poundsSystem;
  if (typed && *typed == Val(DefaultRewardAmount(type, otherSystem))) {
    amount = Shown(DefaultRewardAmount(type, uomID), locale);
  }
}

RewardSettings ToSettings(RewardForm &form, const QLocale &locale) {
  const QString *amount = form.AmountOf(form.type);
  return {form.type, amount ? ValueOrZero(*amount, locale) : 0, form.message, form.sound};
}

}  // namespace

QString *RewardForm::AmountOf(RewardType of) {
  switch (of) {
    case RewardType::PersonalWeight:
      return &weight;
    case RewardType::Daily:
      return &daily;
    case RewardType::Weekly:
      return &weekly;
    default:
      return nullptr;
  }
}

RewardForm ReadRewardForm(const Session &session) {
  RewardForm form;
  form.type = session.profile.rewards.type;
  form.message = session.profile.rewards.message;
  form.sound = session.profile.rewards.sound;
  if (QString *amount = form.AmountOf(form.type)) {
    const bool weight = form.type == RewardType::PersonalWeight;
    *amount = Format(session.profile.rewards.amount, weight ? QString() : QStringLiteral("0.0##"), session.locale);
  }
  return form;
}

QString ProposedAmount(Session &session, RewardType type, int uomID) {
  if (type == RewardType::PersonalWeight) return ReadGoalText(session);
  return Shown(DefaultRewardAmount(type, uomID), session.locale);
}

void SwapRewardDefaults(RewardForm &form, int uomID, const QLocale &locale) {
  SwapDefault(form.daily, RewardType::Daily, uomID, locale);
  SwapDefault(form.weekly, RewardType::Weekly, uomID, locale);
}

bool CheckRewardForm(Session &session, RewardForm &form) {
  const QString *amount = form.AmountOf(form.type);
  if (!amount || ValueOrZero(*amount, session.locale) > 0) return true;
  session.boxes.Critical(QStringLiteral("Invalid Reward Amount"),
                         QStringLiteral("Please enter a positive number for your reward."));
  return false;
}

bool SaveRewardForm(Session &session, RewardForm &form) {
  const FailureExit failure{QStringLiteral("frmSetup"), QStringLiteral("cmdOK_Click"),
                            QStringLiteral("Error Saving Data"),
                            QStringLiteral("An error occurred while saving your reward settings.")};
  return Guarded(session, failure,
                 [&session, &form] { SaveRewardSettings(session, ToSettings(form, session.locale)); });
}

QString RewardTestTitle(RewardType type) {
  switch (type) {
    case RewardType::PersonalWeight:
      return QStringLiteral("Personal Reward");
    case RewardType::Daily:
      return QStringLiteral("Daily Reward");
    case RewardType::Weekly:
      return QStringLiteral("Weekly Reward");
    default:
      return {};
  }
}

QString RewardTitle(const QString &personName) { return QStringLiteral("Reward Settings for: ") + personName; }

QString RewardNote(const QString &personName) {
  return QStringLiteral("Note: This setting only affects rewards for ") + personName +
         QStringLiteral(
             ".  To change rewards for someone else, load their profile from the Profiles menu and return to "
             "this window.");
}

QString RewardProfileName(Session &session) { return PersonValue(session, QStringLiteral("PersonName")); }

}  // namespace trimlog
