#include "core/windows/setup_page.h"  // gives the page its meta object
