#include "platform/windows/printing/window_document.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>

#include "platform/twips.h"

namespace trimlog {

namespace {

constexpr int finerThanScreen = 3;

}  // namespace

WindowDocument::WindowDocument(QWidget &form)
    : title_(form.windowTitle().isEmpty() ? form.window()->windowTitle() : form.windowTitle()),
      size_(form.size()),
      image_(form.size() * finerThanScreen, QImage::Format_RGB32) {
  image_.setDevicePixelRatio(finerThanScreen);
  image_.fill(Qt::white);
  form.render(&image_);
}

bool WindowDocument::PrefersLandscape(const QSizeF &upright) {
  const bool wide = size_.width() > size_.height();
  return wide && size_.width() * twipsPerPixel > upright.width();
}

int WindowDocument::LayOut(const QSizeF &page) {
  page_ = page;
  return 1;
}

void WindowDocument::DrawPage(QPainter &painter, int) {
  if (size_.isEmpty()) return;
  QSizeF drawn = QSizeF(size_).scaled(page_, Qt::KeepAspectRatio);
  const QSizeF largest = QSizeF(size_) * twipsPerPixel * 2;
  if (drawn.width() > largest.width()) drawn = largest;
  const QPointF corner((page_.width() - drawn.width()) / 2, 0);
  painter.drawImage(QRectF(corner, drawn), image_);
}

}  // namespace trimlog
