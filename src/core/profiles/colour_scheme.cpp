#include "core/profiles/colour_scheme.h"

#include "core/session/change.h"
#include "core/session/failure_guard.h"

namespace trimlog {

namespace {

constexpr quint32 paleBlue = 0xFFE0C0;
constexpr quint32 paleYellow = 0xC0FFFF;
constexpr double fewColours = 256;

}  // namespace

bool ShowsFewColours(const Session &session) { return session.machine.GetNumColors() <= fewColours; }

quint32 DefaultBackColor(const Session &session) { return ShowsFewColours(session) ? paleYellow : paleBlue; }

const QList<NamedColour> &BackColours() {
  static const QList<NamedColour> colours = {
      {QStringLiteral("Breathtaking Blue"), paleBlue}, {QStringLiteral("Youthful Yellow"), 0xE0FFFF},
      {QStringLiteral("Gorgeous Green"), 0xE0FFE0},    {QStringLiteral("Incredible Indigo"), 0xFFE0E0},
      {QStringLiteral("Confident Crimson"), 0xD0C0FF}, {QStringLiteral("Light Lemon"), paleYellow},
      {QStringLiteral("Soft Peach"), 0xC0E0FF},        {QStringLiteral("Misty Mint"), 0xD8F5C8},
      {QStringLiteral("Calm Aqua"), 0xF5F5C0},         {QStringLiteral("Quiet Lilac"), 0xF5D5EB},
      {QStringLiteral("Warm Sand"), 0xD2E6F0},         {QStringLiteral("Plain Gray"), 0xE0E0E0},
      {QStringLiteral("Clear White"), 0xFFFFFF},
  };
  return colours;
}

const QList<NamedColour> &ChartColours() {
  static const QList<NamedColour> colours = {
      {QStringLiteral("Black"), 0x000000},       {QStringLiteral("Dark Red"), 0x000080},
      {QStringLiteral("Red"), 0x0000FF},         {QStringLiteral("Orange"), 0x0080FF},
      {QStringLiteral("Dark Yellow"), 0x008080}, {QStringLiteral("Dark Green"), 0x008000},
      {QStringLiteral("Green"), 0x00C000},       {QStringLiteral("Teal"), 0x808000},
      {QStringLiteral("Blue"), 0xFF0000},        {QStringLiteral("Dark Blue"), 0x800000},
      {QStringLiteral("Purple"), 0x800080},      {QStringLiteral("Magenta"), 0xFF00FF},
      {QStringLiteral("Brown"), 0x194D8B},       {QStringLiteral("Gray"), 0x808080},
  };
  return colours;
}

void StoreBackColor(Session &session, const QString &personID, quint32 colour) {
  const FailureExit failure{QStringLiteral("frmSetup"), QStringLiteral("cboBackColor_Click"),
                            QStringLiteral("Error Saving Data"),
                            QStringLiteral("An error occurred while saving your color scheme.")};
  const bool stored = Guarded(session, failure, [&session, &personID, colour] {
    Change change(session);
    session.Data().Execute(QStringLiteral("UPDATE people SET people.BackColor=? WHERE (((people.PersonID)=?));"),
                           {static_cast<int>(colour), personID.toInt()});
    change.Announce({.table = Table::People, .keys = {personID.toInt()}});
    if (personID == session.profile.CurrentPersonID) {
      change.Afterwards([&session, colour] {
        session.profile.BackColor = colour;
        session.changes.AnnounceSettings();
      });
    }
    change.Commit();
  });
  if (!stored) return;
  session.boxes.Inform(QStringLiteral("Color Scheme Changed."),
                       QStringLiteral("Your color scheme changes will completely take effect the next time you log "
                                      "on."));
}

}  // namespace trimlog
