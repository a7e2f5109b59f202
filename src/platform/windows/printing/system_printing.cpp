#include "platform/windows/printing/system_printing.h"

#include <QApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include "platform/windows/printing/list_document.h"
#include "platform/windows/printing/text_document.h"
#include "platform/windows/printing/window_document.h"

namespace trimlog {

namespace {

QWidget *WindowInUse() {
  QWidget *modal = QApplication::activeModalWidget();
  return modal ? modal : QApplication::activeWindow();
}

QString ProposedPdf(const PagedDocument &document) {
  static const QRegularExpression notInNames(QStringLiteral("[^\\w\\- ]+"),
                                             QRegularExpression::UseUnicodePropertiesOption);
  const QString name = document.Title().replace(notInNames, QStringLiteral(" ")).simplified();
  return (name.isEmpty() ? QStringLiteral("Trimlog") : name.left(80)) + QStringLiteral(".pdf");
}

}  // namespace

bool SystemPrinting::PrintList(const PrintedList &list) {
  ListDocument document(list);
  return Print(document, First::Preview);
}

bool SystemPrinting::PrintText(const PrintedText &text) {
  TextDocument document(text);
  return Print(document, First::Nothing);
}

bool SystemPrinting::PrintPicture(QWidget &form) {
  WindowDocument document(form);
  return Print(document, First::Nothing);
}

bool SystemPrinting::Print(PagedDocument &document, First first) {
  try {
    if (!output_.HasPrinter()) return OfferPdf(document);
    if (first == First::Preview) {
      output_.Preview(document, WindowInUse());
    } else {
      output_.Print(document, WindowInUse());
    }
    return true;
  } catch (const PrintingCancelled &) {
    return false;
  }
}

bool SystemPrinting::OfferPdf(PagedDocument &document) {
  QString path = boxes_.ChooseSaveFile(QStringLiteral("Print to a PDF File"), {QStringLiteral("PDF Files (*.pdf)")},
                                       ProposedPdf(document));
  if (path.isEmpty()) return false;
  if (QFileInfo(path).suffix().isEmpty()) path += QStringLiteral(".pdf");
  const ShownProgress progress(document, WindowInUse());
  WritePdf(document, path);
  return true;
}

}  // namespace trimlog
