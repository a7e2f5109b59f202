#include "platform/windows/printing/page_output.h"

#include <QBuffer>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>
#include <exception>

#include "platform/error.h"
#include "platform/machine/safe_file.h"
#include "platform/twips.h"

namespace trimlog {

namespace {

constexpr double marginMillimetres = 15;

QPageSize UsualPageSize() {
  return QPageSize(QLocale().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4);
}

class SystemOutput final : public PageOutput {
 public:
  bool HasPrinter() const override { return !QPrinterInfo::defaultPrinter().isNull(); }

  void Print(PagedDocument &document, QWidget *owner) override {
    const ShownProgress progress(document, owner);
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    printer.setDocName(document.Title());
    DrawPages(document, printer);
    if (printer.printerState() == QPrinter::Error) {
      throw Error(error_number::other, QStringLiteral("The printer reports an error."));
    }
  }

  void Preview(PagedDocument &document, QWidget *owner) override {
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    printer.setDocName(document.Title());
    {  // What takes long comes while there is no other window behind it.
      const ShownProgress progress(document, owner);
      printer.setPageOrientation(Orientation(document, printer));
      document.LayOut(PageOf(printer));
    }
    QPrintPreviewDialog preview(&printer, owner);
    preview.setWindowTitle(document.Title());
    std::exception_ptr failure;
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&](QPrinter *device) {
      // Nothing may be thrown through the dialog.
      try {
        const ShownProgress progress(document, &preview);
        PaintOn(*device, document);
      } catch (...) {
        failure = std::current_exception();
        QTimer::singleShot(0, &preview, &QDialog::reject);
      }
    });
    preview.exec();
    if (failure) std::rethrow_exception(failure);
  }

  /// From the preview: on its own pages, on the printer, or into the PDF file that was chosen in its print dialog.
  static void PaintOn(QPrinter &device, PagedDocument &document) {
    if (device.outputFileName().isEmpty()) return DrawAsTurned(document, device);
    WriteSafely(device.outputFileName(), PdfOf(document, device.pageLayout(), false));
  }

  static QSizeF PageOf(const QPagedPaintDevice &device) {
    return device.pageLayout().paintRect(QPageLayout::Point).size() * 20;
  }

  /// The pages as a PDF file's content, turned as the document prefers where that is still to be decided.
  static QByteArray PdfOf(PagedDocument &document, const QPageLayout &layout, bool mayTurn) {
    constexpr int pdfResolution = 600;
    QByteArray content;
    QBuffer buffer(&content);
    if (!buffer.open(QIODevice::WriteOnly)) throw Error(error_number::other, buffer.errorString());
    {
      QPdfWriter writer(&buffer);
      writer.setTitle(document.Title());
      writer.setResolution(pdfResolution);
      writer.setPageLayout(layout);
      if (mayTurn) {
        DrawPages(document, writer);
      } else {
        DrawAsTurned(document, writer);
      }
    }
    // The writer keeps large parts in files of its own until the end, and says nothing when there was no room.
    if (!content.trimmed().endsWith("%%EOF")) throw Error(error_number::diskFull, QStringLiteral("The PDF is torn."));
    return content;
  }

  static QPageLayout::Orientation Orientation(PagedDocument &document, const QPagedPaintDevice &device) {
    QPageLayout upright = device.pageLayout();
    upright.setOrientation(QPageLayout::Portrait);
    const QSizeF size = upright.paintRect(QPageLayout::Point).size() * 20;
    return document.PrefersLandscape(size) ? QPageLayout::Landscape : QPageLayout::Portrait;
  }

  static void DrawAsTurned(PagedDocument &document, QPagedPaintDevice &device) {
    const int pages = document.LayOut(PageOf(device));
    QPainter painter;
    if (!painter.begin(&device)) {
      throw Error(error_number::cannotOpen, QStringLiteral("The pages could not be started."));
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(static_cast<double>(device.logicalDpiX()) / twipsPerInch,
                  static_cast<double>(device.logicalDpiY()) / twipsPerInch);
    for (int page = 0; page < pages; ++page) {
      if (page > 0 && !device.newPage()) {
        throw Error(error_number::other, QStringLiteral("A page could not be printed."));
      }
      document.Reached(PrintStage::Drawing, page, pages);
      document.DrawPage(painter, page);
    }
    if (!painter.end()) throw Error(error_number::other, QStringLiteral("The last page could not be printed."));
  }
};

}  // namespace

std::unique_ptr<PageOutput> SystemPageOutput() { return std::make_unique<SystemOutput>(); }

void DrawPages(PagedDocument &document, QPagedPaintDevice &device) {
  device.setPageOrientation(SystemOutput::Orientation(document, device));
  SystemOutput::DrawAsTurned(document, device);
}

void WritePdf(PagedDocument &document, const QString &path) {
  QPageLayout layout(UsualPageSize(), QPageLayout::Portrait,
                     QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
                     QPageLayout::Millimeter);
  WriteSafely(path, SystemOutput::PdfOf(document, layout, true));
}

}  // namespace trimlog
