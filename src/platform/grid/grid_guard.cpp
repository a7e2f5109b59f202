#include "platform/grid/grid_guard.h"

#include "platform/grid/grid_model.h"

namespace trimlog {

bool RunGuarded(GridModel &model, GridAction action, const std::function<void()> &work) {
  if (model.hooks.guard) {
    const bool done = model.hooks.guard(action, work);
    if (!done && action == GridAction::Save) model.SetRowSentence(GridModel::tr("This row could not be saved."));
    return done;
  }
  try {
    work();
    return true;
  } catch (const Error &error) {
    model.SetRowSentence(error.Description());
    return false;
  }
}

}  // namespace trimlog
