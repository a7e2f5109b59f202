#pragma once

#include <QLocale>
#include <QString>
#include <array>

#include "tools/tools_profile.h"

namespace trimlog {

// The bar on which a percentage of body fat is shown. Places are in twips from the left edge of the panel; a segment
// begins a little before the one at its left ends.
struct BodyFatSegment {
  QString caption;
  int Left = 0;
  int Width = 0;
};
inline constexpr int bodyFatSegments = 3;
const std::array<BodyFatSegment, bodyFatSegments> &BodyFatSegments();

/// Where the segments meet, as fractions, and the percentages written there.
struct BodyFatBounds {
  std::array<QString, bodyFatSegments> labels;  ///< at the left end of each segment
  double acceptable = 0;
  double obese = 0;
};
/// `gender` 1 is male; every other value counts as female.
BodyFatBounds BoundsOfBodyFat(int gender);

/// The marker's place on the bar.
struct BodyFatMarker {
  int x = 0;         ///< twips, rounded with halves to even
  int category = 0;  ///< 0 below the bar (the marker stands at its left end), 1 to 3 the segments
  int Segment() const { return category < 1 ? 0 : category - 1; }  ///< whose colour it takes
};
BodyFatMarker PlaceBodyFatMarker(double fraction, int gender);

/// What the assessment is asked.
struct BodyFatQuestion {
  bool atGoalWeight = false;  ///< else the current weight
  QString goalWeight;         ///< as typed
  bool otherWaist = false;    ///< else the most recent measurement
  QString waist;              ///< as typed
};

struct BodyFatAssessment {
  double fraction = 0;
  QString value;  ///< "Your Body Fat = 21.34%"
  BodyFatBounds bounds;
  BodyFatMarker marker;
  QString summary;
};
/// Throws typeMismatch with a sentence for the person when an input is missing or is no number, divisionByZero for a
/// weight of 0.
BodyFatAssessment AssessBodyFat(const BodyFatQuestion &question, const ToolsProfile &profile, int UomID,
                                const QString &UomDisplay, const QLocale &locale);

}  // namespace trimlog
