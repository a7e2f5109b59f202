#include "tools/index_advice.h"

namespace trimlog {

IndexBand BandOfIndex(int bmi) {
  if (bmi < 19) return IndexBand::Underweight;
  if (bmi < 25) return IndexBand::Ideal;
  return bmi < 30 ? IndexBand::ModerateRisk : IndexBand::SevereRisk;
}

std::optional<int> IndexIfTellable(double weight, const BodyProfile &body, int UomID) {
  if (!(HeightInMetres(body.HeightFeet, body.HeightInches, UomID) > 0)) return std::nullopt;
  const double mostTellable = 32767;
  const double index = UnroundedBMI(weight, body.HeightFeet, body.HeightInches, UomID);
  if (!(std::abs(index) <= mostTellable)) return std::nullopt;
  return CalcBMI(weight, body.HeightFeet, body.HeightInches, UomID);
}

QString IndexSentence(const QString &subject, const std::optional<int> &bmi, const QString &judgement) {
  if (!bmi) return subject + QStringLiteral(" cannot be calculated from this weight and the height in your profile.");
  return subject + QStringLiteral(" is ") + QString::number(*bmi) + judgement;
}

}  // namespace trimlog
