#include "core/windows/setup/setup_page.h"  // gives the page its meta object
