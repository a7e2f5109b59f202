#include "platform/store/recordset.h"

#include <QSet>

#include "platform/error.h"
#include "platform/store_fixture.h"

namespace trimlog {

class RecordsetTest : public StoreTest, public testing::WithParamInterface<RecordsetKind> {
 protected:
  RecordsetTest() {
    Transaction transaction(*data);
    for (int i = 1; i <= 600; ++i) {
      data->Execute("INSERT INTO foods (MealID, MealDesc, Calories) VALUES (?, ?, ?)",
                    {i, QStringLiteral("Food %1").arg(700 - i), i % 50});
    }
    transaction.Commit();
  }
  Recordset Open(const char *sql, RecordsetKind kind) { return data->OpenRecordset(sql, {}, kind); }
  static int NumberOf(const std::function<void()> &work) {
    try {
      work();
    } catch (const Error &error) {
      return error.Number();
    }
    return 0;
  }
  static QString Name(const Recordset &rows) { return rows.Text("MealDesc"); }
};

TEST_P(RecordsetTest, MovesFindsAndCounts) {
  Recordset rows = Open("SELECT foods.* FROM foods WHERE MealID > 500 ORDER BY foods.MealDesc;", GetParam());
  EXPECT_EQ(rows.RecordCount(), 100);
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  EXPECT_EQ(Name(rows), "Food 100");
  rows.MoveLast();
  EXPECT_EQ(Name(rows), "Food 199");
  const QVariant last = rows.Bookmark();
  rows.FindFirst("MealID=570");
  EXPECT_FALSE(rows.NoMatch());
  EXPECT_EQ(rows.AbsolutePosition(), 30);
  rows.FindFirst("MealID=3");  // in the table, not among the rows
  EXPECT_TRUE(rows.NoMatch());
  EXPECT_EQ(Name(rows), "Food 130");
  rows.FindFirst("UCase(Left(MealDesc, 1))= \"F\" AND [MealDesc] = ?", {"food 145"});
  EXPECT_EQ(rows.AbsolutePosition(), 45);
  rows.SetBookmark(last);
  EXPECT_EQ(rows.AbsolutePosition(), 99);
  rows.MoveNext();
  EXPECT_TRUE(rows.Eof());
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  EXPECT_EQ(NumberOf([&] { Name(rows); }), error_number::noCurrentRecord);
  EXPECT_EQ(NumberOf([&] { rows.MoveNext(); }), error_number::noCurrentRecord);
  rows.MovePrevious();
  EXPECT_EQ(Name(rows), "Food 199");
  rows.MoveFirst();
  rows.MovePrevious();
  EXPECT_TRUE(rows.Bof());
  EXPECT_EQ(NumberOf([&] { rows.Text("Nothing"); }), error_number::unknownColumn);
  EXPECT_EQ(NumberOf([&] { rows.SetAbsolutePosition(100); }), error_number::noCurrentRecord);
  EXPECT_EQ(NumberOf([&] { rows.FindFirst("Frobnicate(1)"); }), error_number::invalidSql);

  Recordset none = Open("SELECT foods.* FROM foods WHERE MealID = -99", GetParam());
  EXPECT_TRUE(none.Bof() && none.Eof());
  EXPECT_EQ(none.RecordCount(), 0);
  EXPECT_EQ(none.FieldNames().size(), 7);
}
INSTANTIATE_TEST_SUITE_P(Kinds, RecordsetTest, testing::Values(RecordsetKind::Snapshot, RecordsetKind::Dynaset));

TEST_F(RecordsetTest, DynasetReadsOnlyTheRowsThatAreVisited) {
  const StoreCounts before = data->Counts();
  Recordset rows = Open("SELECT foods.* FROM foods ORDER BY MealDesc", RecordsetKind::Dynaset);
  EXPECT_EQ(data->Counts().rowsRead - before.rowsRead, 0);
  for (int i = 0; i < 30; ++i) {
    rows.SetAbsolutePosition(200 + i);
    Name(rows);
    rows.Field(0);
  }
  EXPECT_EQ(data->Counts().rowsRead - before.rowsRead, 30);
  EXPECT_EQ(data->Counts().statements - before.statements, 31);
}

TEST_F(RecordsetTest, EditsAddsAndDeletesOneRowAtATime) {
  Recordset rows = Open("SELECT foods.* FROM foods WHERE MealID <= 3 ORDER BY MealID", RecordsetKind::Dynaset);
  const qint64 commits = data->Counts().commits;
  rows.MoveNext();
  rows.Edit();
  rows.SetField("MealDesc", "O'Brien's \"stew\"");
  rows.SetField("Calories", 12.5);
  EXPECT_EQ(Name(rows), "O'Brien's \"stew\"");
  EXPECT_EQ(Rows("SELECT MealDesc FROM foods WHERE MealID=2"), "Food 698");
  rows.Update();
  EXPECT_EQ(Name(rows), "O'Brien's \"stew\"");
  EXPECT_EQ(rows.Integer("Calories"), 12);

  rows.Edit();
  rows.SetField("MealDesc", "given up");
  rows.CancelUpdate();
  EXPECT_EQ(Name(rows), "O'Brien's \"stew\"");

  rows.AddNew();
  EXPECT_FALSE(rows.Field("MealDesc").isValid());
  rows.SetField("MealID", 900);
  rows.Update();
  EXPECT_EQ(rows.RecordCount(), 4);
  rows.MoveLast();
  EXPECT_EQ(rows.Integer("MealID"), 900);
  rows.Edit();
  rows.SetField("MealID", 901);  // the row's key itself
  rows.Update();
  EXPECT_EQ(rows.Integer("MealID"), 901);

  rows.SetAbsolutePosition(1);
  rows.Delete();
  EXPECT_EQ(rows.RecordCount(), 3);
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  EXPECT_EQ(NumberOf([&] { Name(rows); }), error_number::noCurrentRecord);
  rows.MoveNext();
  EXPECT_EQ(rows.Integer("MealID"), 3);
  EXPECT_EQ(Rows("SELECT MealID FROM foods WHERE MealID <= 3 Or MealID > 899 ORDER BY MealID"), "1 / 3 / 901");
  EXPECT_EQ(data->Counts().commits - commits, 4);
}

TEST_F(RecordsetTest, ARefusedEditLeavesFileAndRowAsTheyWere) {
  Recordset rows = Open("SELECT foods.* FROM foods WHERE MealID <= 2 ORDER BY MealID", RecordsetKind::Dynaset);
  rows.Edit();
  EXPECT_EQ(NumberOf([&] { rows.SetField("Calories", 70000); }), error_number::overflow);
  EXPECT_EQ(NumberOf([&] { rows.SetField("Nothing", 1); }), error_number::unknownColumn);
  rows.SetField("MealID", 2);
  EXPECT_EQ(NumberOf([&] { rows.Update(); }), error_number::duplicateKey);
  rows.CancelUpdate();
  EXPECT_EQ(rows.Integer("MealID"), 1);
  EXPECT_EQ(NumberOf([&] { rows.Update(); }), error_number::notEditing);

  data->Execute("DELETE FROM foods WHERE MealID=2");
  rows.MoveNext();
  EXPECT_EQ(NumberOf([&] { Name(rows); }), error_number::recordDeleted);

  Recordset joined = Open("SELECT foods.MealDesc FROM foods INNER JOIN people ON foods.MealID = people.PersonID",
                          RecordsetKind::Dynaset);
  EXPECT_EQ(joined.RecordCount(), 1);
  EXPECT_EQ(NumberOf([&] { joined.Edit(); }), error_number::readOnly);
  EXPECT_EQ(NumberOf([&] { Open("SELECT foods.* FROM foods", RecordsetKind::Snapshot).AddNew(); }),
            error_number::readOnly);
}

TEST_F(RecordsetTest, AHeldRecordsetDoesNotKeepTheFile) {
  const char *sql = "SELECT foods.* FROM foods ORDER BY MealID";
  Recordset snapshot = Open(sql, RecordsetKind::Snapshot), dynaset = Open(sql, RecordsetKind::Dynaset),
            forward = Open(sql, RecordsetKind::Forward);
  EXPECT_EQ(Name(dynaset), "Food 699");
  data.reset();
  data = Database::Open(path);
  EXPECT_EQ(Rows("SELECT Count(*) FROM foods"), "600");
  snapshot.MoveLast();
  EXPECT_EQ(Name(snapshot), "Food 100");
  dynaset.MoveNext();
  EXPECT_EQ(NumberOf([&] { Name(dynaset); }), error_number::notOpen);
  EXPECT_EQ(NumberOf([&] { dynaset.Edit(); }), error_number::notOpen);
  EXPECT_EQ(NumberOf([&] { forward.MoveNext(); }), error_number::notOpen);
}

TEST_F(RecordsetTest, ForwardGoesOnceAndNestsWithTheSameStatement) {
  const char *sql = "SELECT foods.MealID FROM foods WHERE MealID < 4 ORDER BY MealID";
  int pairs = 0;
  for (Recordset outer = Open(sql, RecordsetKind::Forward); !outer.Eof(); outer.MoveNext()) {
    for (Recordset inner = Open(sql, RecordsetKind::Forward); !inner.Eof(); inner.MoveNext()) {
      pairs += inner.Integer("MealID") * outer.Integer("MealID");
    }
  }
  EXPECT_EQ(pairs, 36);
  Recordset rows = Open(sql, RecordsetKind::Forward);
  EXPECT_EQ(NumberOf([&] { rows.MoveLast(); }), error_number::other);
  EXPECT_EQ(NumberOf([&] { (void)rows.RecordCount(); }), error_number::other);
}

}  // namespace trimlog
