#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/windows/machine/qt_boxes.h"
#include "platform/windows/machine/qt_machine.h"
#include "platform/windows/machine/window_stacking.h"

namespace trimlog {
namespace {

/// Does something to the dialog that the next call opens.
template <typename Dialog>
void OnceOpen(const std::function<void(Dialog &)> &act) {
  QTimer::singleShot(0, qApp, [act] {
    auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
}

void Press(QWidget &widget, Qt::Key key) { QTest::keyClick(&widget, key); }

TEST(Boxes, AQuestionAnsweredByKeyboard) {
  struct Case {
    BoxButton preset;
    Qt::Key key;
    bool yes;
  };
  for (const Case &c : {Case{BoxButton::Yes, Qt::Key_Return, true}, Case{BoxButton::No, Qt::Key_Return, false},
                        Case{BoxButton::Yes, Qt::Key_Escape, false}}) {
    OnceOpen<QMessageBox>([&c](QMessageBox &box) {
      EXPECT_EQ(box.icon(), QMessageBox::Question);
      EXPECT_EQ(box.windowTitle(), QStringLiteral("Delete?"));
      Press(box, c.key);
    });
    EXPECT_EQ(QtBoxes().Ask(QStringLiteral("Delete?"), QStringLiteral("Sure?"), c.preset), c.yes);
  }
}

TEST(Boxes, TextIsShownToTheLetter) {
  const QString text = QStringLiteral("<b>Ann & Bo</b>\n\nclick <OK>  twice");
  QtBoxes boxes;
  boxes.programTitle = QStringLiteral("Trimlog Pro 2.7");
  OnceOpen<QMessageBox>([&text](QMessageBox &box) {
    EXPECT_EQ(box.text(), text);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Trimlog Pro 2.7")) << "no title means the program's";
    Press(box, Qt::Key_Escape);
  });
  boxes.Critical(QString(), text);
}

TEST(Boxes, TheButtonThatIsPressedIsTheAnswer) {
  const std::pair<BoxButton, QMessageBox::StandardButton> buttons[] = {{BoxButton::Ok, QMessageBox::Ok},
                                                                       {BoxButton::Cancel, QMessageBox::Cancel},
                                                                       {BoxButton::Yes, QMessageBox::Yes},
                                                                       {BoxButton::No, QMessageBox::No}};
  for (const auto &[answer, button] : buttons) {
    OnceOpen<QMessageBox>(
        [pressed = button](QMessageBox &box) { QTest::mouseClick(box.button(pressed), Qt::LeftButton); });
    EXPECT_EQ(QtBoxes().Show({QStringLiteral("T"),
                              QStringLiteral("t"),
                              BoxIcon::None,
                              {BoxButton::Ok, BoxButton::Cancel, BoxButton::Yes, BoxButton::No}}),
              answer);
  }
}

TEST(Boxes, ALineOfText) {
  const QString prompt = QStringLiteral("Type it and click <OK>.");
  OnceOpen<QDialog>([&prompt](QDialog &dialog) {
    const auto *label = dialog.findChild<QLabel *>();
    EXPECT_EQ(label->text(), prompt);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    auto *field = dialog.findChild<QLineEdit *>();
    EXPECT_EQ(field->text(), QStringLiteral("old"));
    field->setText(QStringLiteral("new"));
    Press(*field, Qt::Key_Return);
  });
  EXPECT_EQ(QtBoxes().AskText(QStringLiteral("T"), prompt, QStringLiteral("old")),
            std::optional(QStringLiteral("new")));

  OnceOpen<QDialog>([](QDialog &dialog) { Press(dialog, Qt::Key_Escape); });
  EXPECT_EQ(QtBoxes().AskText(QStringLiteral("T"), prompt, QStringLiteral("old")), std::nullopt);
}

TEST(Machine, AnswersWhereThereIsNothing) {
  QtMachine machine;
  EXPECT_FALSE(machine.Start(QStringLiteral("/no/such/program"), {}));
  EXPECT_GE(machine.GetNumColors(), 256);
  EXPECT_FALSE(machine.AccountName().isEmpty());
  machine.PlaySound(QStringLiteral("/no/such/sound.wav"));
  EXPECT_FALSE(machine.HasWindowTitled(QStringLiteral("Internet Guard Dog")));
  QWidget dog;
  dog.setWindowTitle(QStringLiteral("Internet Guard Dog"));
  dog.show();
  EXPECT_TRUE(machine.HasWindowTitled(QStringLiteral("Internet Guard Dog")));
  EXPECT_FALSE(machine.HasWindowTitled(QStringLiteral("Guard Dog")));
}

TEST(WindowStacking, KeepsTheWindowShown) {
  QWidget window;
  window.show();
  MakeTopMost(&window);
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  MakeNormal(&window);
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));

  window.showMinimized();
  RaiseWindow(&window);
  EXPECT_FALSE(window.isMinimized());
}

TEST(Boxes, WhenTheMachineEndsTheProgramAllAreClosedAndNoneComes) {
  QtBoxes boxes;
  QDialog window;
  QTimer::singleShot(0, &window, [&] {
    QTimer::singleShot(0, &window, [] { CloseModalWindows(); });
    EXPECT_FALSE(boxes.Ask(QStringLiteral("Delete?"), QStringLiteral("Sure?"))) << "has no Cancel to be closed by";
  });
  EXPECT_EQ(window.exec(), QDialog::Rejected);
  boxes.silent = true;
  EXPECT_FALSE(boxes.Ask(QStringLiteral("Delete?"), QStringLiteral("Sure?")));
  EXPECT_FALSE(boxes.AskText({}, {}, QStringLiteral("text")));
  EXPECT_EQ(boxes.ChooseSaveFile({}, {}, QStringLiteral("file")), QString());
}

}  // namespace
}  // namespace trimlog
