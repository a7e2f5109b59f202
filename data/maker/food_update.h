#pragma once

#include "maker/catalog_data.h"

namespace trimlog {

/// foodexer1.dat, from which the data file of an earlier release takes what came since: foods of fast-food places and
/// restaurants, foods that got another name, and the sets of nutrition targets.
void WriteFoodUpdate(Database &database, const QString &directory, const FoodFacts &foods);

}  // namespace trimlog
