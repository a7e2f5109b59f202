#pragma once

#include "core/windows/frame/frmMDI.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

/// A content window with two fields that remembers what the frame asked of it.
class TestForm : public ContentWindow {
 public:
  struct Behaviour {
    bool leaves = true;  ///< ValidateFields
    bool saves = true;   ///< SaveOpenEdit
    QStringList calls;   ///< "<form>:<what>"
  };
  TestForm(const QString &name, Behaviour &behaviour, QWidget *parent) : ContentWindow(parent), behaviour_(behaviour) {
    setObjectName(name);
    auto *layout = new QVBoxLayout(this);
    for (const char *field : {"txtData(1)", "txtData(2)"}) {
      auto *edit = new QLineEdit(this);
      edit->setObjectName(field);
      layout->addWidget(edit);
    }
    Note("made");
  }
  ~TestForm() override { Note("gone"); }

  bool ValidateFields() override { return behaviour_.leaves; }
  EditOutcome SaveOpenEdit() override {
    Note("save");
    return behaviour_.saves ? EditOutcome::Saved : EditOutcome::Refused;
  }
  void Activated() override { Note("activated"); }
  void GotoDate(const QDate &date) override { Note(qPrintable(date.toString(Qt::ISODate))); }
  WindowCommands Commands() override {
    WindowCommands commands;
    if (objectName() != "frmData") return commands;
    for (const char *name : {"mnuFilePrint", "mnuEditDeleteWeight", "mnuEditGotoPrevious", "mnuEditGotoNext"}) {
      commands.insert(name, [this, name] { Note(name); });
    }
    return commands;
  }
  void PrepareForPrinting(bool on) override { Note(on ? "paper" : "screen"); }

 private:
  void Note(const char *what) { behaviour_.calls.append(objectName() + QLatin1Char(':') + what); }
  Behaviour &behaviour_;
};

class FrameTest : public ::testing::Test {
 protected:
  FrameTest() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    session->settings.ShowSplash = false;
    session->settings.ShowTutorial = false;
    session->windows.framePlace = {1500, 1500, 9525, 7095};
    for (const char *name : {"frmData", "frmDiary", "frmGraphs"}) Offer(name);
  }

  void Offer(const QString &name) {
    forms.insert(name, [this, name](QWidget *parent) { return new TestForm(name, behaviour, parent); });
  }
  /// Makes the frame and runs its load; what happened until then is forgotten.
  frmMDI &Load() {
    frame = std::make_unique<frmMDI>(FrameParts{*session, navigator, hooks, *system, forms, QueryUnload});
    loaded = frame->MDIForm_Load();
    QApplication::processEvents();
    behaviour.calls.clear();
    return *frame;
  }
  QAction *Action(const char *name) { return frame->Menus().Action(name); }
  void Choose(const char *name) {
    Action(name)->trigger();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  bool Visible(const char *name) { return Action(name)->isVisible(); }
  QAction *ProfileEntry(const QString &caption) {
    for (QAction *action : frame->Menus().Profiles()->actions()) {
      if (action->text() == caption) return action;
    }
    return nullptr;
  }
  template <typename Widget>
  Widget *Find(const char *name) {
    return frame->findChild<Widget *>(name);
  }

  TestSession session;
  Navigator navigator;
  RoomHooks hooks;
  std::unique_ptr<OperatingSystem> system = RunningSystem();
  TestForm::Behaviour behaviour;
  ContentForms forms;
  std::function<bool()> QueryUnload;
  std::unique_ptr<frmMDI> frame;
  bool loaded = false;
};

}  // namespace trimlog
