#include "platform/windows/printing/page_output.h"

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <optional>

#include "platform/error.h"
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

  void Print(PagedDocument &document) override {
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
    printer.setPageOrientation(Orientation(document, printer));
    QPrintPreviewDialog preview(&printer, owner);
    preview.setWindowTitle(document.Title());
    std::optional<Error> failure;
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&](QPrinter *device) {
      try {
        DrawAsTurned(document, *device);
      } catch (const Error &error) {
        failure = error;
      }
    });
    preview.exec();
    if (failure) throw Error(*failure);
  }

  static QPageLayout::Orientation Orientation(PagedDocument &document, const QPagedPaintDevice &device) {
    QPageLayout upright = device.pageLayout();
    upright.setOrientation(QPageLayout::Portrait);
    const QSizeF size = upright.paintRect(QPageLayout::Point).size() * 20;
    return document.PrefersLandscape(size) ? QPageLayout::Landscape : QPageLayout::Portrait;
  }

  static void DrawAsTurned(PagedDocument &document, QPagedPaintDevice &device) {
    const int pages = document.LayOut(device.pageLayout().paintRect(QPageLayout::Point).size() * 20);
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
      document.DrawPage(painter, page);
    }
    if (!painter.end()) throw Error(error_number::other, QStringLiteral("The last page could not be printed."));
  }
};

QString ProposedPdf(const PagedDocument &document) {
  static const QRegularExpression notInNames(QStringLiteral("[^\\w\\- ]+"),
                                             QRegularExpression::UseUnicodePropertiesOption);
  const QString name = document.Title().replace(notInNames, QStringLiteral(" ")).simplified();
  return (name.isEmpty() ? QStringLiteral("Trimlog") : name.left(80)) + QStringLiteral(".pdf");
}

bool OfferPdf(PagedDocument &document, Boxes &boxes) {
  QString path = boxes.ChooseSaveFile(QStringLiteral("Print to a PDF File"), {QStringLiteral("PDF Files (*.pdf)")},
                                      ProposedPdf(document));
  if (path.isEmpty()) return false;
  if (QFileInfo(path).suffix().isEmpty()) path += QStringLiteral(".pdf");
  WritePdf(document, path);
  return true;
}

}  // namespace

std::unique_ptr<PageOutput> SystemPageOutput() { return std::make_unique<SystemOutput>(); }

void DrawPages(PagedDocument &document, QPagedPaintDevice &device) {
  device.setPageOrientation(SystemOutput::Orientation(document, device));
  SystemOutput::DrawAsTurned(document, device);
}

void WritePdf(PagedDocument &document, const QString &path) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) throw Error(error_number::cannotOpen, file.errorString());
  {
    QPdfWriter writer(&file);
    writer.setTitle(document.Title());
    writer.setPageSize(UsualPageSize());
    writer.setPageMargins(QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
                          QPageLayout::Millimeter);
    writer.setResolution(600);
    DrawPages(document, writer);
  }
  if (!file.commit()) throw Error(error_number::cannotOpen, file.errorString());
}

bool PrintPages(PagedDocument &document, PageOutput &output, Boxes &boxes) {
  if (!output.HasPrinter()) return OfferPdf(document, boxes);
  output.Print(document);
  return true;
}

bool PreviewPages(PagedDocument &document, PageOutput &output, Boxes &boxes, QWidget *owner) {
  if (!output.HasPrinter()) return OfferPdf(document, boxes);
  output.Preview(document, owner);
  return true;
}

}  // namespace trimlog
