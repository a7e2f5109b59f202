#include "journal/day/day_note.h"

#include "core/session/change.h"
#include "journal/day/day_records.h"
#include "journal/day/printed_heading.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

bool NoteExists(const Session &session, int recordID) {
  return !session.Data()
              .OpenRecordset(
                  QStringLiteral("SELECT notes.RecordID FROM notes WHERE ((notes.PersonID=?) AND (notes.RecordID=?));"),
                  {session.profile.CurrentPersonID.toInt(), recordID}, RecordsetKind::Forward)
              .Eof();
}

}  // namespace

DayNote ReadDayNote(const Session &session, const QDate &date) {
  const std::optional<int> recordID = NoteOn(session, date);
  return {recordID, recordID ? NoteText(session, *recordID) : QString()};
}

DayNote StoreDayNote(Session &session, const QDate &date, const DayNote &shown, const QString &text) {
  Change change(session);
  std::optional<int> recordID = shown.RecordID;
  if (!recordID || !NoteExists(session, *recordID)) recordID = NoteOn(session, date);
  if (recordID) {
    SaveNote(session, *recordID, text);
  } else {
    recordID = AddNote(session, date, text);
  }
  change.Commit();
  return {recordID, text};
}

PrintedText NotesToPrint(const Session &session, const GridSource &source, const QDate &singleDate) {
  const QString day = singleDate.isValid() ? ShortDate(singleDate, session.locale) : QStringLiteral("All Dates");
  PrintedText printed{PrintedHeading(session, QStringLiteral(": Daily Notes For ") + day), {}};
  const GridStatement keys = KeysStatement(source);
  for (Recordset row = session.Data().OpenRecordset(keys.sql, keys.params, RecordsetKind::Forward); !row.Eof();
       row.MoveNext()) {
    const GridStatement statement = RowsStatement(source, {}, {row.Integer(source.key)});
    const Recordset note = session.Data().OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
    QString text = note.Text(QStringLiteral("Notes"));
    if (!singleDate.isValid()) {
      text.prepend(ShortDate(note.Field(QStringLiteral("ThisDate")).toDate(), session.locale) + QLatin1Char('\n'));
    }
    printed.paragraphs.append(text);
  }
  return printed;
}

}  // namespace trimlog
