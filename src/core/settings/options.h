#pragma once

#include <QList>
#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// One entry of a list in the options window: the value kept and the text shown.
struct OptionChoice {
  int value = 0;
  QString text;
};

const QList<OptionChoice> &LineWidths();  ///< settings LineWidth1 to 4, in pixels
const QList<OptionChoice> &DiaryTabs();   ///< setting DefaultDiaryTab
const QList<OptionChoice> &BodyTypes();   ///< setting BodyMeasDefault, 1 to 8
const QList<QString> &ChartNames();       ///< charts 1 to 4, at 0 to 3
/// The two unit systems of the data file.
QList<OptionChoice> UnitChoices(Session &session);
/// What the calendar's figure of the day can be: calories consumed, burned and net, then every other nutrient by its
/// id, with its unit; a custom one under the name that the person gave it.
QList<OptionChoice> NutrientChoices(const Nutrients &nutrients);

/// The words of a unit system.
struct UnitLabels {
  QString weight;        ///< "lbs." or "kg."
  QString HeightFeet;    ///< "Ht (ft.)" or "Ht (m.)"
  QString HeightInches;  ///< "Ht (in.)" or "Ht (cm.)"
  QString Goal;          ///< "Goal (lbs.)" or "Goal (kg.)"
};
UnitLabels LabelsOf(int uomID);

/// Reads the setting NutrientID afresh from the store: the calendar and chart 3 write it too.
void RereadNutrientID(Session &session);

/// Takes over what the options window edited: the session's settings and unit label, then the store; announces it.
void StoreOptions(Session &session, const Settings &edited);

/// Stores the sign of losses at once: 1 shows a loss as positive, -1 as negative.
void StoreLossFactor(Session &session, int lossFactor);

/// Puts the Quick Journal's place and size back to the first ones, in the session and the store.
void ResetQuickJournalPlace(Session &session);

}  // namespace trimlog
