#pragma once

#include <QDialogButtonBox>
#include <functional>

class QDialog;
class QLayout;

namespace trimlog {

/// The row of buttons at the foot of a dialog, named cmdOK, cmdCancel and cmdHelp. OK calls `ok`, which decides whether
/// the dialog may close (dialog.accept()); Cancel and Esc reject the dialog. Add the row last: Tab reaches controls in
/// the order in which they are made.
QDialogButtonBox *AddOkCancel(QDialog &dialog, QLayout *layout, const std::function<void()> &ok,
                              QDialogButtonBox::StandardButtons buttons = QDialogButtonBox::Ok |
                                                                          QDialogButtonBox::Cancel);

}  // namespace trimlog
