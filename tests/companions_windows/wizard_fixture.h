#pragma once

#include "companions/windows/frmWizard.h"
#include "platform/store/recordset.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

/// The keyboard of a modal window under test: everything goes to the control that has the focus.
class Keyboard {
 public:
  explicit Keyboard(QWidget &window) : window_(window) {
    QApplication::setActiveWindow(&window);
    QCoreApplication::processEvents();
  }

  /// Key by key: the first may open the field that takes the rest.
  void Type(const QString &text) {
    for (const QChar character : text) {
      ASSERT_NE(QApplication::focusWidget(), nullptr) << "nothing has the focus";
      QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget *focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : &window_, key, modifiers);
    QCoreApplication::processEvents();
  }
  /// A button pressed by its access key stays down for a moment before it acts.
  void Alt(Qt::Key key) {
    Press(key, Qt::AltModifier);
    WaitForPressedButtons();
  }
  void Tab(int times = 1) {
    while (times-- > 0) Press(Qt::Key_Tab);
  }
  void Enter() { Press(Qt::Key_Return); }
  /// Types the entries, a Tab behind each but the last, and leaves the step with Enter.
  void FillStep(const QStringList &entries) {
    for (qsizetype i = 0; i < entries.size(); ++i) {
      Type(entries[i]);
      if (i + 1 < entries.size()) Tab();
    }
    Enter();
  }
  QString FocusName() const {
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
  }

 private:
  QWidget &window_;
};

/// A file as it is shipped, or with one profile; the wizard opened on it and driven by a test.
class WizardTest : public testing::Test {
 protected:
  explicit WizardTest(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates)) : session(locale) {
    navigator.LoadData = [this](const QString &personID) { loaded.append(personID); };
  }

  void ForgetProfiles() {
    session.Data().Execute("DELETE people.*, people.PersonID FROM people WHERE (people.PersonID > 0);");
  }
  bool Run(const std::function<void(QWidget &wizard, Keyboard &keys)> &act, bool force = true) {
    WhenModal([&act](QWidget &wizard) {
      Keyboard keys(wizard);
      act(wizard, keys);
      // What a test leaves open is closed without a question.
      if (auto *dialog = qobject_cast<QDialog *>(&wizard); dialog && dialog->isVisible()) dialog->done(0);
    });
    return StartWiz(*session, navigator, force, nullptr);
  }
  void Weigh(double weight) { session.Weigh(QDate(2026, 3, 1), weight); }
  void ExpectLeaveQuestion(BoxButton answer) {
    session.boxes.Expect("Trimlog Pro Configuration Wizard",
                         "What you have entered so far will be lost.  Do you want to leave the wizard?", answer);
  }
  static QString TextOf(QWidget &wizard, const char *name) {
    return Find<QWidget>(wizard, name).property("text").toString();
  }
  static QString Title(QWidget &wizard) { return TextOf(wizard, "lblTitle"); }
  QString Person(const QString &field, int personID) {
    return session.ValueOf(field, "people", QStringLiteral("PersonID=%1").arg(personID));
  }
  QString Count(const QString &table, const QString &where = "1=1") {
    return session.Data()
        .OpenRecordset(QStringLiteral("SELECT Count(*) AS N FROM %1 WHERE %2;").arg(table, where))
        .Text("N");
  }

  TestSession session;
  Navigator navigator;
  QStringList loaded;
};

}  // namespace trimlog
