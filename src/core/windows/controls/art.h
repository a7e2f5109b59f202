#pragma once

#include <QIcon>
#include <QPixmap>

namespace trimlog {

/// The program's drawn pictures by name ("calendar", "previous", ...; the files of src/app/art without their ending).
/// They come as ready-made pixels for small and large screens, so that showing one decodes no drawing. Nothing is
/// loaded until it is painted. A name without a picture gives an empty icon.
QIcon ArtIcon(const QString &name);
/// The picture of the start and of the About box, 480 x 270 with the program's name on it.
QPixmap SplashPicture(qreal devicePixelRatio);

}  // namespace trimlog
