#pragma once

#include <QString>
#include <optional>

#include "health/body_formulas.h"

namespace trimlog {

/// How the body mass index of a weight is judged.
enum class IndexBand { Underweight, Ideal, ModerateRisk, SevereRisk };

/// By the whole-number index: below 19, 19 to 24, 25 to 29, 30 and above.
IndexBand BandOfIndex(int bmi);

/// The index, or nothing where it cannot be told: a height of 0 or less, or an index beyond the 16-bit range.
std::optional<int> IndexIfTellable(double weight, const BodyProfile &body, int UomID);

/// "<subject> is 23" and what follows it, or the sentence that the index cannot be calculated.
QString IndexSentence(const QString &subject, const std::optional<int> &bmi, const QString &judgement);

}  // namespace trimlog
