#include "core/windows/content_window.h"  // gives the base class its meta object
