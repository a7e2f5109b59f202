#include "core/windows/frame/edit_commands.h"

#include "platform/windows/grid/bound_grid.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

QString Clipboard() { return QApplication::clipboard()->text(); }
void SetClipboard(const char *text) { QApplication::clipboard()->setText(text); }

TEST(EditCommands, WorkOnTheSelectionOfATextField) {
  QLineEdit field("182.5 lbs");
  field.setSelection(0, 5);
  RunEditCommand(EditCommand::Copy, &field);
  EXPECT_EQ(Clipboard(), "182.5");
  RunEditCommand(EditCommand::Cut, &field);
  EXPECT_EQ(field.text(), " lbs");
  RunEditCommand(EditCommand::Undo, &field);
  EXPECT_EQ(field.text(), "182.5 lbs");
  SetClipboard("90");
  field.selectAll();
  RunEditCommand(EditCommand::Paste, &field);
  EXPECT_EQ(field.text(), "90");
}

TEST(EditCommands, ReadOnlyFieldsAreOnlyCopiedFrom) {
  QLineEdit field("30.5");
  field.setReadOnly(true);
  field.selectAll();
  SetClipboard("before");
  RunEditCommand(EditCommand::Cut, &field);
  RunEditCommand(EditCommand::Paste, &field);
  EXPECT_EQ(field.text(), "30.5");
  EXPECT_EQ(Clipboard(), "before");
  RunEditCommand(EditCommand::Copy, &field);
  EXPECT_EQ(Clipboard(), "30.5");
  EXPECT_FALSE(CanRunEditCommand(EditCommand::Paste, &field));
  EXPECT_TRUE(CanRunEditCommand(EditCommand::Copy, &field));
}

TEST(EditCommands, ReachTheFieldInsideOtherControls) {
  QComboBox combo;
  combo.setEditable(true);
  combo.setEditText("Lunch");
  QSpinBox spin;
  spin.setRange(0, 999);
  spin.setValue(42);
  QPlainTextEdit notes("walked");
  for (QWidget *control : QWidgetList{&combo, &spin, &notes}) {
    SetClipboard("");
    QMetaObject::invokeMethod(control == &combo ? combo.lineEdit() : control, "selectAll");
    RunEditCommand(EditCommand::Copy, control);
    EXPECT_FALSE(Clipboard().isEmpty()) << control->metaObject()->className();
  }
}

TEST(EditCommands, OnAGridMeanTheActiveCell) {
  TestSession session;
  BoundGrid grid("grdPeople", "Profiles", session->locale);
  grid.SetColumns({{.name = "PersonName", .field = "PersonName", .editable = true}, {.name = "Goal", .field = "Goal"}});
  ASSERT_TRUE(grid.Open(session.Data(), {.table = "people", .key = "PersonID", .where = "(people.PersonID > 0)"}));
  EXPECT_TRUE(grid.GoToKey(1));
  const auto text = [&grid](int column) { return grid.model()->index(0, column).data().toString(); };

  grid.setCurrentIndex(grid.model()->index(0, 0));
  RunEditCommand(EditCommand::Cut, &grid);
  EXPECT_EQ(Clipboard(), "Test Person");
  EXPECT_EQ(text(0), QString());
  RunEditCommand(EditCommand::Paste, &grid);
  EXPECT_EQ(text(0), "Test Person");

  SetClipboard("99");
  grid.setCurrentIndex(grid.model()->index(0, 1));
  RunEditCommand(EditCommand::Paste, &grid);
  RunEditCommand(EditCommand::Copy, &grid);
  EXPECT_EQ(text(1), "150");
  EXPECT_EQ(Clipboard(), "150");
  EXPECT_FALSE(CanRunEditCommand(EditCommand::Paste, &grid));
}

TEST(EditCommands, DoNothingOnOtherControlsAndOnNone) {
  QWidget other;
  for (const EditCommand command : {EditCommand::Undo, EditCommand::Cut, EditCommand::Copy, EditCommand::Paste}) {
    EXPECT_FALSE(CanRunEditCommand(command, nullptr));
    EXPECT_FALSE(CanRunEditCommand(command, &other));
    RunEditCommand(command, nullptr);
    RunEditCommand(command, &other);
  }
}

}  // namespace
}  // namespace trimlog
