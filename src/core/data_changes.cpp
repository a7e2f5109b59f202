#include "core/data_changes.h"  // gives the announcing object its meta object
