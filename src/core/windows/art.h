#pragma once

#include <QIcon>
#include <QPixmap>

namespace trimlog {

/// The program's drawn pictures by name ("calendar", "previous", ...; the files of src/app/art without their ending).
/// They come as ready-made pixels for small and large screens, so that showing one decodes no drawing. Nothing is
/// loaded until it is painted. A name without a picture gives an empty icon.
QIcon ArtIcon(const QString &name);
/// A larger picture at its drawn size.
QPixmap ArtPixmap(const QString &name, qreal devicePixelRatio);

}  // namespace trimlog
