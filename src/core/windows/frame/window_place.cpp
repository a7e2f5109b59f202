#include "core/windows/frame/window_place.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include "platform/twips.h"

namespace trimlog {

void PutInPlace(QWidget &window, const WindowPlace &place) {
  QRect wanted(PixelsFromTwips(place.Left), PixelsFromTwips(place.Top), PixelsFromTwips(place.Width),
               PixelsFromTwips(place.Height));
  wanted.setSize(wanted.size().expandedTo(window.minimumSize()));
  const QScreen *screen = QApplication::screenAt(wanted.center());
  if (!screen) {
    screen = QApplication::primaryScreen();
    wanted.moveCenter(screen->availableGeometry().center());
  }
  const QRect usable = screen->availableGeometry();
  wanted.moveTopLeft({std::max(wanted.left(), usable.left()), std::max(wanted.top(), usable.top())});
  window.move(wanted.topLeft());
  window.resize(wanted.size());
}

WindowPlace PlaceOf(const QRect &pixels) {
  return {TwipsFromPixels(pixels.left()), TwipsFromPixels(pixels.top()), TwipsFromPixels(pixels.width()),
          TwipsFromPixels(pixels.height())};
}

}  // namespace trimlog
