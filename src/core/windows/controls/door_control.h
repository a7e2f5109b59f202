#pragma once

#include "core/session/form_door.h"

namespace trimlog {

/// A control or menu entry that opens another window: where nothing stands behind its door it is disabled, and its tip
/// says why.
template <typename Control, typename Door>
void NeedsDoor(Control &control, const Door &door) {
  const bool leads = static_cast<bool>(door);
  control.setEnabled(leads);
  if (!leads) control.setToolTip(leadsNowhere);
}

}  // namespace trimlog
