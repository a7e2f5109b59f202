#include "platform/windows/machine/qt_boxes.h"
#include "platform/windows/machine/qt_machine.h"
#include "platform/windows/machine/window_stacking.h"
#include "support/windows/controls.h"

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
      EXPECT_EQ(box.windowTitle(), "Delete?");
      Press(box, c.key);
    });
    EXPECT_EQ(QtBoxes().Ask("Delete?", "Sure?", c.preset), c.yes);
  }
}

TEST(Boxes, TextIsShownToTheLetter) {
  const QString text = "<b>Ann & Bo</b>\n\nclick <OK>  twice";
  QtBoxes boxes;
  boxes.programTitle = "Trimlog Pro 2.7";
  OnceOpen<QMessageBox>([&text](QMessageBox &box) {
    EXPECT_EQ(box.text(), text);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Trimlog Pro 2.7") << "no title means the program's";
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
    EXPECT_EQ(
        QtBoxes().Show({"T", "t", BoxIcon::None, {BoxButton::Ok, BoxButton::Cancel, BoxButton::Yes, BoxButton::No}}),
        answer);
  }
}

TEST(Boxes, ALineOfText) {
  const QString prompt = "Type it and click <OK>.";
  OnceOpen<QDialog>([&prompt](QDialog &dialog) {
    const auto *label = dialog.findChild<QLabel *>();
    EXPECT_EQ(label->text(), prompt);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    auto *field = dialog.findChild<QLineEdit *>();
    EXPECT_EQ(field->text(), "old");
    field->setText("new");
    Press(*field, Qt::Key_Return);
  });
  EXPECT_EQ(QtBoxes().AskText("T", prompt, "old"), std::optional("new"));

  OnceOpen<QDialog>([](QDialog &dialog) { Press(dialog, Qt::Key_Escape); });
  EXPECT_EQ(QtBoxes().AskText("T", prompt, "old"), std::nullopt);
}

TEST(Machine, AnswersWhereThereIsNothing) {
  QtMachine machine;
  EXPECT_FALSE(machine.Start("/no/such/program", {}));
  EXPECT_GE(machine.GetNumColors(), 256);
  EXPECT_FALSE(machine.AccountName().isEmpty());
  machine.PlaySound("/no/such/sound.wav");
  EXPECT_FALSE(machine.HasWindowTitled("Internet Guard Dog"));
  QWidget dog;
  dog.setWindowTitle("Internet Guard Dog");
  dog.show();
  EXPECT_TRUE(machine.HasWindowTitled("Internet Guard Dog"));
  EXPECT_FALSE(machine.HasWindowTitled("Guard Dog"));
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
    EXPECT_FALSE(boxes.Ask("Delete?", "Sure?")) << "has no Cancel to be closed by";
  });
  EXPECT_EQ(window.exec(), QDialog::Rejected);
  boxes.silent = true;
  EXPECT_FALSE(boxes.Ask("Delete?", "Sure?"));
  EXPECT_FALSE(boxes.AskText({}, {}, "text"));
  EXPECT_EQ(boxes.ChooseSaveFile({}, {}, "file"), QString());
}

}  // namespace
}  // namespace trimlog
