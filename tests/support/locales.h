#pragma once

#include <QLocale>

namespace trimlog {

// The people that tests speak for.
inline const QLocale us(QLocale::English, QLocale::UnitedStates);
inline const QLocale german(QLocale::German, QLocale::Germany);
inline const QLocale swiss(QLocale::German, QLocale::Switzerland);
inline const QLocale french(QLocale::French, QLocale::France);

}  // namespace trimlog
