#pragma once

#include <QStringList>
#include <ostream>

// Texts as a failing comparison should show them: words, not a list of code units. Found by their argument, so they
// stand outside the namespace.

inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }

inline void PrintTo(const QStringList &texts, std::ostream *out) {
  *out << '{' << texts.join(QStringLiteral(" | ")).toStdString() << '}';
}

inline std::ostream &operator<<(std::ostream &out, const QString &text) { return out << text.toStdString(); }
