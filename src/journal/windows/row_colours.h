#pragma once

#include <QtGlobal>

class QAbstractItemView;

namespace trimlog {

/// Every second row of a list stands in a tint of a colour (blue-green-red byte order), light enough on a light desktop
/// and deep enough on a dark one for the text on it to be read. Follows when the desktop turns dark or light.
void PaintOddRows(QAbstractItemView *list, quint32 backColor);

}  // namespace trimlog
