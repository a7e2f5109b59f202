#include "core/windows/frame/content_window.h"  // gives the base class its meta object
