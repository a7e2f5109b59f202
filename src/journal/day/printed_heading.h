#pragma once

#include <QString>

namespace trimlog {

class Session;

/// The title of a printed page: the profile's name, then what is printed (": Meals Eaten on 3/28/2026").
QString PrintedHeading(const Session &session, const QString &title);

}  // namespace trimlog
