#pragma once

#include "maker/catalog_data.h"

namespace trimlog {

/// The two sample profiles from the plans in data/samples: who they are, what they weighed, ate, did and wrote. Their
/// entries are worked out as the program does it when somebody types them, and stand twice: pristine in the _sample
/// tables and live beside the people's own.
void WriteSamples(Database &database, const QString &directory, const FoodFacts &foods);

}  // namespace trimlog
