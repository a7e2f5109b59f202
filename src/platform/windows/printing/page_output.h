#pragma once

#include <QSizeF>
#include <QString>
#include <memory>

#include "platform/boxes.h"

class QPagedPaintDevice;
class QPainter;
class QWidget;

namespace trimlog {

/// Something that can be put on pages. Lengths are twips (1,440 to the inch), from the top left of the area inside the
/// page's margins.
class PagedDocument {
 public:
  virtual ~PagedDocument() = default;
  virtual QString Title() const = 0;
  /// True when the document fits an upright page of this size less well than one turned by a quarter.
  virtual bool PrefersLandscape(const QSizeF &upright) = 0;
  /// Lays everything out on pages of this size; returns their number, at least 1.
  virtual int LayOut(const QSizeF &page) = 0;
  virtual void DrawPage(QPainter &painter, int page) = 0;  ///< 0 is the first
};

/// Where pages go. The real one asks the print system only when something is printed, so that starting the program does
/// not wait for it; a test stands in its place.
class PageOutput {
 public:
  virtual ~PageOutput() = default;
  virtual bool HasPrinter() const = 0;
  virtual void Print(PagedDocument &document) = 0;                    ///< throws an Error
  virtual void Preview(PagedDocument &document, QWidget *owner) = 0;  ///< from there to the printer; throws an Error
};

std::unique_ptr<PageOutput> SystemPageOutput();

/// Draws all pages on a printer or PDF device, turned as the document prefers. Throws an Error when it cannot.
void DrawPages(PagedDocument &document, QPagedPaintDevice &device);
/// Writes the pages as a PDF file: the whole file or none. Throws an Error.
void WritePdf(PagedDocument &document, const QString &path);

/// Prints at once. Where the machine has no printer, asks for the name of a PDF file and puts the same pages there.
/// False when that was cancelled. Throws an Error on failure.
bool PrintPages(PagedDocument &document, PageOutput &output, Boxes &boxes);
/// The same with a preview before.
bool PreviewPages(PagedDocument &document, PageOutput &output, Boxes &boxes, QWidget *owner);

}  // namespace trimlog
