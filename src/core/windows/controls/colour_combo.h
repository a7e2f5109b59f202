#pragma once

#include <QComboBox>
#include <QList>

#include "core/profiles/colour_scheme.h"

namespace trimlog {

/// A list of named colours, each with its swatch. Values are in blue-green-red byte order.
class ColourCombo : public QComboBox {
  Q_OBJECT
 public:
  ColourCombo(const QString &name, const QString &spokenName, const QList<NamedColour> &colours, QWidget *parent);

  /// Shows a colour; one that has no name here gets an entry of its own.
  void SetColour(quint32 colour);
  quint32 Colour() const;

 private:
  void AddColour(const NamedColour &colour);
};

}  // namespace trimlog
