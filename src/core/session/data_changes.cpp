#include "core/session/data_changes.h"  // gives the announcing object its meta object
