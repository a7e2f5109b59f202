#pragma once

#include <QList>
#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// A colour that a person can choose, in blue-green-red byte order.
struct NamedColour {
  QString name;
  quint32 colour = 0;
};

/// The colour scheme of a profile that has chosen none: pale yellow (C0FFFF) on screens of up to 256 colours, pale blue
/// (FFE0C0) on all others.
quint32 DefaultBackColor(const Session &session);
/// A screen of up to 256 colours: pastels would turn into patterns there.
bool ShowsFewColours(const Session &session);

/// The pastel schemes that a profile can choose from.
const QList<NamedColour> &BackColours();
/// The colours for the lines and points of charts.
const QList<NamedColour> &ChartColours();

/// Stores a profile's scheme and says when it takes effect. The loaded profile's session colour follows at once.
void StoreBackColor(Session &session, const QString &personID, quint32 colour);

}  // namespace trimlog
