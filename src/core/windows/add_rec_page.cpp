#include "core/windows/add_rec_page.h"  // gives the page its meta object
