#pragma once

class QWidget;

namespace trimlog {

/// Makes a label or a tool tip show its text as it stands: a food or a person named "<b>x" is a name, not markup. A
/// label that asks for a format of its own keeps it; what is no label stays as it is.
void KeepPlain(QWidget *widget);

}  // namespace trimlog
