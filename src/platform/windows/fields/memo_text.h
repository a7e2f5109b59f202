#pragma once

#include <QString>

class QPlainTextEdit;

namespace trimlog {

/// What a box of several lines holds, its blanks as typed: those that do not break too. A box knows one kind of line
/// end only; `stored` is the text it was filled with, whose kind it keeps.
QString MemoText(const QPlainTextEdit &box, const QString &stored = {});

}  // namespace trimlog
