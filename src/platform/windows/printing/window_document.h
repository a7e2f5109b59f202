#pragma once

#include <QImage>

#include "platform/windows/printing/page_output.h"

namespace trimlog {

/// The picture of a window on one page, as large as it fits, never larger than twice its size on the screen.
class WindowDocument final : public PagedDocument {
 public:
  explicit WindowDocument(QWidget &form);
  QString Title() const override { return title_; }
  bool PrefersLandscape(const QSizeF &upright) override;
  int LayOut(const QSizeF &page) override;
  void DrawPage(QPainter &painter, int page) override;

 private:
  QString title_;
  QSize size_;    ///< on the screen
  QImage image_;  ///< drawn finer than the screen
  QSizeF page_;
};

}  // namespace trimlog
