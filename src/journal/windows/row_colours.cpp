#include "journal/windows/row_colours.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>

#include "core/windows/controls/theme.h"

namespace trimlog {

namespace {

constexpr float tint = 0.35F;  // of the colour; the rest is the list's own background

QColor Between(const QColor &from, const QColor &to, float share) {
  const auto part = [share](float low, float high) { return low + (high - low) * share; };
  return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                          part(from.blueF(), to.blueF()));
}

/// Lives in a list and knows the colour of its odd rows.
class OddRows final : public QObject {
 public:
  OddRows(QAbstractItemView *list, quint32 backColor) : QObject(list), list_(list), backColor_(backColor) {
    setObjectName(QStringLiteral("OddRows"));
    list->installEventFilter(this);
    Paint();
  }

 protected:
  bool eventFilter(QObject *, QEvent *event) override {
    const bool changed = event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange;
    if (changed && desktop_ != QApplication::palette().cacheKey()) Paint();
    return false;
  }

 private:
  void Paint() {
    const QPalette desktop = QApplication::palette();
    desktop_ = desktop.cacheKey();
    QPalette palette;  // only this one is set: all else stays the desktop's
    palette.setColor(QPalette::AlternateBase,
                     Between(desktop.color(QPalette::Base), PanelColor(backColor_, desktop), tint));
    list_->setPalette(palette);
  }

  QAbstractItemView *list_;
  quint32 backColor_;
  qint64 desktop_ = 0;
};

}  // namespace

void PaintOddRows(QAbstractItemView *list, quint32 backColor) {
  delete list->findChild<QObject *>(QStringLiteral("OddRows"), Qt::FindDirectChildrenOnly);
  new OddRows(list, backColor);
}

}  // namespace trimlog
