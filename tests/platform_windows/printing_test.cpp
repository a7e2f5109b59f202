#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTimer>

#include "grid_fixture.h"
#include "platform/windows/printing/grid_printer.h"
#include "platform/windows/printing/system_printing.h"
#include "support/full_disk.h"
#include "support/queued_boxes.h"

namespace trimlog {
namespace {

struct DrawnText {
  int page;
  QString text;
  double left, right, bottom;
};

/// A paint device that notes every text drawn on it, in the painter's own units.
class TextRecorder final : public QPaintDevice {
 public:
  class Engine final : public QPaintEngine {
   public:
    Engine(TextRecorder *owner) : QPaintEngine(QPaintEngine::AllFeatures), owner_(owner) {}
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    Type type() const override { return User; }
    void drawTextItem(const QPointF &at, const QTextItem &item) override {
      owner_->drawn.push_back({owner_->page, item.text(), at.x(), at.x() + item.width(), at.y()});
    }

   private:
    TextRecorder *owner_;
  };
  QPaintEngine *paintEngine() const override { return &engine_; }
  int page = 0;
  std::vector<DrawnText> drawn;

 protected:
  int metric(PaintDeviceMetric metric) const override {
    if (metric == PdmWidth || metric == PdmHeight) return 20000;
    if (metric == PdmDevicePixelRatio || metric == PdmNumColors) return 1;
    if (metric == PdmDevicePixelRatioScaled) return static_cast<int>(devicePixelRatioFScale());
    return metric == PdmDepth ? 32 : 1440;
  }

 private:
  mutable Engine engine_{this};
};

/// A printer that only notes what would stand on its pages.
class RecordingOutput final : public PageOutput {
 public:
  bool HasPrinter() const override { return hasPrinter; }
  void Print(PagedDocument &document, QWidget *) override {
    landscape = document.PrefersLandscape(page);
    if (landscape) page.transpose();
    pages = document.LayOut(page);
    QPainter painter(&recorder);
    for (int number = 0; number < pages; ++number) {
      recorder.page = number;
      document.DrawPage(painter, number);
    }
  }
  void Preview(PagedDocument &document, QWidget *owner) override { Print(document, owner); }

  QString TextOf(int number) const {
    QStringList texts;
    for (const DrawnText &drawn : recorder.drawn) {
      if (drawn.page == number) texts.append(drawn.text);
    }
    return texts.join(QLatin1Char('|'));
  }

  bool hasPrinter = true;
  bool landscape = false;
  QSizeF page{10200, 15100};  // A4 inside its margins
  int pages = 0;
  TextRecorder recorder;
};

PrintedList Words(int rows, int columns, const QString &word) {
  PrintedList list;
  list.heading = "Food List: My Foods";
  for (int column = 0; column < columns; ++column) {
    list.columns.push_back({QStringLiteral("Caption%1\n(g)").arg(column), 2000, column > 0});
  }
  list.rows = rows;
  list.cell = [word](int row, int column) {
    return column > 0 ? QString::number(row) : QStringLiteral("%1 r%2").arg(word).arg(row);
  };
  return list;
}

TEST(ListPrinting, EveryRowStandsOnceUnderRepeatedCaptions) {
  RecordingOutput output;
  QueuedBoxes boxes;
  PrintedList list = Words(500, 3, "Bread");
  list.closing = {{"Daily Totals", "12", "34"}};
  ASSERT_TRUE(SystemPrinting(boxes, output).PrintList(list));
  EXPECT_GT(output.pages, 5);
  EXPECT_FALSE(output.landscape);
  QString all;
  for (int page = 0; page < output.pages; ++page) {
    const QString text = output.TextOf(page);
    EXPECT_TRUE(text.startsWith("Food List: My Foods|Caption0|Caption1|")) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("|Page: %1|").arg(page + 1))) << page;
    all += QLatin1Char('|') + text;
  }
  for (int row = 0; row < 500; ++row) EXPECT_EQ(all.count(QStringLiteral("|Bread r%1|").arg(row)), 1) << row;
  EXPECT_TRUE(all.endsWith("|Daily Totals|12|34"));
}

TEST(ListPrinting, APrintMadeSmallerBreaksNoWord) {
  RecordingOutput output;
  QueuedBoxes boxes;
  ASSERT_TRUE(SystemPrinting(boxes, output).PrintList(Words(5, 14, "Bread")));
  for (int column = 0; column < 14; ++column) {
    EXPECT_TRUE(output.TextOf(0).contains(QStringLiteral("|Caption%1|").arg(column))) << output.TextOf(0).toStdString();
  }
}

TEST(ListPrinting, NothingIsCutOff) {
  struct Case {
    const char *what;
    PrintedList list;
    bool landscape;
  };
  PrintedList tall = Words(3, 2, QStringLiteral("word ").repeated(3000));
  for (Case &printed :
       std::vector<Case>{{"more columns than a page is wide", Words(30, 14, "A food with a rather long name"), true},
                         {"a word longer than its column", Words(5, 3, QString(400, QLatin1Char('w'))), false},
                         {"a row longer than a page", tall, false},
                         {"no rows at all", Words(0, 2, {}), false}}) {
    RecordingOutput output;
    QueuedBoxes boxes;
    ASSERT_TRUE(SystemPrinting(boxes, output).PrintList(printed.list));
    EXPECT_EQ(output.landscape, printed.landscape) << printed.what;
    qsizetype letters = 0;
    for (const DrawnText &drawn : output.recorder.drawn) {
      EXPECT_GE(drawn.left, -1) << printed.what;
      EXPECT_LE(drawn.right, output.page.width() + 1) << printed.what << ": " << drawn.text.toStdString();
      EXPECT_LE(drawn.bottom, output.page.height()) << printed.what;
      letters += drawn.text.count(QLatin1Char('w'));
    }
    qsizetype expected = 0;
    for (int row = 0; row < printed.list.rows; ++row) expected += printed.list.cell(row, 0).count(QLatin1Char('w'));
    EXPECT_EQ(letters, expected) << printed.what;
  }
}

TEST_F(GridTest, AGridPrintsItsVisibleColumnsInTheOrderShown) {
  grid.ShowColumn("Bought", false);
  grid.SortBy("FoodDesc", true);
  RecordingOutput output;
  QueuedBoxes boxes;
  ASSERT_TRUE(SystemPrinting(boxes, output).PrintList(PrintedGrid(grid, "Foods")));
  const QString text = output.TextOf(0);
  EXPECT_TRUE(text.startsWith("Foods|Food Description|Calories|Fat|Group|Modified|(kcal)|(g)")) << text.toStdString();
  EXPECT_TRUE(text.contains("|Food 00040|995|5.00|Fruits|No|Food 00039|")) << text.toStdString();
}

TEST(TextPrinting, GoesOnUnderItsTitleUntilNothingIsLeft) {
  RecordingOutput output;
  QueuedBoxes boxes;
  PrintedText notes{"Ann: Daily Notes For 3/1/2026", {}};
  for (int note = 0; note < 60; ++note) {
    notes.paragraphs.append(QStringLiteral("Note %1.\r\nsecond line%2").arg(note).arg(QString(400, u'w')));
  }
  ASSERT_TRUE(SystemPrinting(boxes, output).PrintText(notes));
  ASSERT_GT(output.pages, 3);
  qsizetype letters = 0;
  QString all;
  for (int page = 0; page < output.pages; ++page) {
    const QString text = output.TextOf(page);
    const QString title = page == 0 ? notes.title : notes.title + " (Continued)";
    EXPECT_TRUE(text.startsWith(title + QLatin1Char('|'))) << text.toStdString();
    all += text.mid(title.size());
  }
  for (int note = 0; note < 60; ++note) EXPECT_EQ(all.count(QStringLiteral("|Note %1.|").arg(note)), 1) << note;
  for (const DrawnText &drawn : output.recorder.drawn) {
    EXPECT_LE(drawn.right, output.page.width() + 1);
    EXPECT_LE(drawn.bottom, output.page.height());
    letters += drawn.text.count(QLatin1Char('w'));
  }
  EXPECT_EQ(letters, 60 * 400);
  ASSERT_TRUE(SystemPrinting(boxes, output).PrintText({"Nothing", {}}));
  EXPECT_EQ(output.pages, 1);
}

/// What a machine without a printer offers instead.
class PdfPrinting : public ::testing::Test {
 protected:
  PdfPrinting() { output.hasPrinter = false; }
  void Choose(const QString &path) { boxes.ExpectInput("Print to a PDF File", path); }
  QByteArray Content(const QString &name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QTemporaryDir folder;
  RecordingOutput output;
  QueuedBoxes boxes;
  SystemPrinting printing{boxes, output};
};

TEST_F(PdfPrinting, APicturesPageGoesToTheFileThatIsChosen) {
  QLineEdit form("A form");
  form.setWindowTitle("Data: 1/2");
  form.resize(900, 600);
  boxes.ExpectInput("Print to a PDF File", std::nullopt);
  EXPECT_FALSE(printing.PrintPicture(form)) << "cancelled";
  Choose(folder.filePath("page"));
  EXPECT_TRUE(printing.PrintPicture(form));
  const QByteArray content = Content("page.pdf");
  EXPECT_TRUE(content.startsWith("%PDF-"));
  EXPECT_EQ(content.count("/Type /Page\n"), 1);
  Choose(folder.filePath("missing/page.pdf"));
  EXPECT_THROW(printing.PrintPicture(form), Error);
}

TEST_F(PdfPrinting, AFullDiskLeavesTheGoodFileAndSaysSo) {
  Choose(folder.filePath("page.pdf"));
  ASSERT_TRUE(printing.PrintText({"Good", {"text"}}));
  const QByteArray good = Content("page.pdf");
  for (const rlim_t room : {rlim_t{0}, rlim_t{4000}}) {
    Choose(folder.filePath("page.pdf"));
    {
      const FullDisk full(room);
      EXPECT_THROW(printing.PrintList(Words(50, 3, "Bread")), Error) << room;
    }
    EXPECT_EQ(Content("page.pdf"), good) << room;
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "nothing is left beside it";
  }
}

/// The machine's own preview, where there is no printer: its print button leads to a PDF file.
class OwnPreview final : public PageOutput {
 public:
  bool HasPrinter() const override { return true; }
  void Print(PagedDocument &document, QWidget *owner) override { system_->Print(document, owner); }
  void Preview(PagedDocument &document, QWidget *owner) override { system_->Preview(document, owner); }

 private:
  const std::unique_ptr<PageOutput> system_ = SystemPageOutput();
};

/// Answers what comes up as a person does who prints from the preview into a file that may be there already.
class PreviewUser : public QObject {
 public:
  explicit PreviewUser(const QString &path) : path_(path) { startTimer(10); }

 protected:
  void timerEvent(QTimerEvent *) override {
    QWidget *modal = QApplication::activeModalWidget();
    if (auto *box = qobject_cast<QMessageBox *>(modal)) {
      QTimer::singleShot(0, box->button(QMessageBox::Yes), &QAbstractButton::click);
    } else if (auto *printer = qobject_cast<QPrintDialog *>(modal)) {
      auto *name = printer->findChild<QLineEdit *>("filename");
      if (!name || name->text() == path_) return;
      name->setText(path_);
      const auto *buttons = printer->findChild<QDialogButtonBox *>();
      QTimer::singleShot(0, buttons->button(QDialogButtonBox::Ok), &QAbstractButton::click);
    } else if (modal && modal->inherits("QPrintPreviewDialog") && !printed_) {
      for (QAction *action : modal->findChildren<QAction *>()) {
        if (action->text() == "Print") QTimer::singleShot(0, action, &QAction::trigger);
        printed_ = true;
      }
    }
  }

 private:
  const QString path_;
  bool printed_ = false;
};

TEST_F(PdfPrinting, WhatThePreviewPrintsIntoAFileIsWholeOrTheFormerFile) {
  if (!QPrinterInfo::availablePrinters().isEmpty()) GTEST_SKIP() << "with a printer the preview asks for that";
  OwnPreview preview;
  SystemPrinting paper(boxes, preview);
  const QString path = folder.filePath("list.pdf");
  {
    const PreviewUser user(path);
    EXPECT_TRUE(paper.PrintList(Words(50, 3, "Bread")));
  }
  const QByteArray good = Content("list.pdf");
  EXPECT_TRUE(good.startsWith("%PDF-") && good.trimmed().endsWith("%%EOF"));
  const FullDisk full(4000);
  const PreviewUser user(path);
  EXPECT_THROW(paper.PrintList(Words(500, 3, "Bread")), Error);
  EXPECT_EQ(Content("list.pdf"), good);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "nothing is left beside it";
}

TEST_F(PdfPrinting, ALongListShowsThatItWorksAndCanBeCancelledAtEveryStage) {
  for (const PrintStage stage : {PrintStage::Measuring, PrintStage::LayingOut, PrintStage::Drawing}) {
    PrintedList list = Words(4000, 3, "Bread");
    bool shown = false;
    list.cell = [&, cell = list.cell](int row, int column) {
      auto *window = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
      shown = shown || window;
      if (!window) QThread::usleep(200);
      const bool stageReached = window && window->value() > 100 * static_cast<int>(stage) + 20;
      if (stageReached) {
        EXPECT_EQ(window->objectName(), "frmPrintGrids");
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
        QTest::keyClick(window, Qt::Key_Escape);
      }
      return cell(row, column);
    };
    Choose(folder.filePath("long.pdf"));
    EXPECT_FALSE(printing.PrintList(list)) << static_cast<int>(stage);
    EXPECT_TRUE(shown);
    EXPECT_FALSE(QFile::exists(folder.filePath("long.pdf")));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  }
}

}  // namespace
}  // namespace trimlog
