#pragma once

namespace trimlog {

/// What became of the text that a content window was asked to save. Unless it is saved its box was shown and the text
/// still stands in its field.
enum class EditOutcome {
  Saved,    ///< or there was nothing to save
  Refused,  ///< it is no value of its kind: the person puts it right, or takes it back with Esc
  Failed,   ///< it could not be written
};

}  // namespace trimlog
