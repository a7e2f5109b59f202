#pragma once

#include <QSizeF>
#include <memory>

#include "platform/windows/printing/print_progress.h"

class QPagedPaintDevice;
class QPainter;
class QWidget;

namespace trimlog {

/// Something that can be put on pages. Lengths are twips (1,440 to the inch), from the top left of the area inside the
/// page's margins. All but the title tells its progress, and so may be cancelled.
class PagedDocument {
 public:
  virtual ~PagedDocument() = default;
  virtual QString Title() const = 0;
  /// True when the document fits an upright page of this size less well than one turned by a quarter.
  virtual bool PrefersLandscape(const QSizeF &upright) = 0;
  /// Lays everything out on pages of this size; returns their number, at least 1.
  virtual int LayOut(const QSizeF &page) = 0;
  virtual void DrawPage(QPainter &painter, int page) = 0;  ///< 0 is the first

  PrintProgress *progress = nullptr;  ///< who is told; nobody for none
  void Reached(PrintStage stage, int done, int total) const {
    if (progress) progress->Reached(stage, done, total);
  }
};

/// Shows a document's progress for as long as it lives.
class ShownProgress {
 public:
  ShownProgress(PagedDocument &document, QWidget *owner) : document_(document), window_(document.Title(), owner) {
    document_.progress = &window_;
  }
  ~ShownProgress() { document_.progress = nullptr; }
  ShownProgress(const ShownProgress &) = delete;
  ShownProgress &operator=(const ShownProgress &) = delete;

 private:
  PagedDocument &document_;
  frmPrintGrids window_;
};

/// Where pages go. The real one asks the print system only when something is printed, so that starting the program does
/// not wait for it; a test stands in its place.
class PageOutput {
 public:
  virtual ~PageOutput() = default;
  virtual bool HasPrinter() const = 0;
  virtual void Print(PagedDocument &document, QWidget *owner) = 0;  ///< throws an Error
  /// Shows the pages, and prints them from there when wanted. Throws an Error.
  virtual void Preview(PagedDocument &document, QWidget *owner) = 0;
};

std::unique_ptr<PageOutput> SystemPageOutput();

/// Draws all pages on a printer or PDF device, turned as the document prefers. Throws an Error when it cannot.
void DrawPages(PagedDocument &document, QPagedPaintDevice &device);
/// Writes the pages as a PDF file: the whole file or none. Throws an Error.
void WritePdf(PagedDocument &document, const QString &path);

}  // namespace trimlog
